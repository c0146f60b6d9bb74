// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_mime_data.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>

namespace {

// The toolkit's name for a picture, which it gives away in the formats of others.
const QString still = QStringLiteral("application/x-qt-image");

} // namespace

FileMimeData::FileMimeData(const QString &path) : path_(path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("gif") || suffix == QLatin1String("webp"))
        ownFormat_ = QStringLiteral("image/") + suffix;
    const QUrl address = QUrl::fromLocalFile(path);
    setUrls({address});
    // The toolkit would write blanks into it, and two words are no address.
    setText(address.toString(QUrl::FullyEncoded));
    for (const char *desktop : {"gnome", "mate"})
        setData(QStringLiteral("x-special/%1-copied-files").arg(QLatin1String(desktop)),
                "copy\n" + address.toEncoded());
}

QStringList FileMimeData::formats() const {
    QStringList all = QMimeData::formats();
    // Before the picture that does not move, and before the text.
    if (!ownFormat_.isEmpty())
        all = QStringList{all.value(0), ownFormat_, still} + all.sliced(1);
    return all;
}

QVariant FileMimeData::retrieveData(const QString &format, QMetaType type) const {
    if (!ownFormat_.isEmpty() && format == still)
        return QImageReader(path_).read();
    if (ownFormat_.isEmpty() || format != ownFormat_)
        return QMimeData::retrieveData(format, type);
    QFile file(path_);
    return file.open(QIODevice::ReadOnly) ? QVariant(file.readAll()) : QVariant();
}
