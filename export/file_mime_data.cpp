// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_mime_data.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

FileMimeData::FileMimeData(const QString &path, const QImage &picture) : path_(path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("gif") || suffix == QLatin1String("webp"))
        ownFormat_ = QStringLiteral("image/") + suffix;
    const QUrl address = QUrl::fromLocalFile(path);
    setUrls({address});
    setData(QStringLiteral("x-special/gnome-copied-files"), "copy\n" + address.toEncoded());
    if (!picture.isNull())
        setImageData(picture);
}

QStringList FileMimeData::formats() const {
    QStringList all = QMimeData::formats();
    // Before the picture that does not move.
    if (!ownFormat_.isEmpty())
        all.insert(2, ownFormat_);
    return all;
}

QVariant FileMimeData::retrieveData(const QString &format, QMetaType type) const {
    if (ownFormat_.isEmpty() || format != ownFormat_)
        return QMimeData::retrieveData(format, type);
    QFile file(path_);
    return file.open(QIODevice::ReadOnly) ? QVariant(file.readAll()) : QVariant();
}
