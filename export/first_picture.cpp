// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/first_picture.h"

#include <QFile>
#include <QImageReader>

namespace {

constexpr int longestSide = 480; // pixels: a card's width on a screen of double density

} // namespace

QSize pictureSize(const QString &path) {
    if (const QSize size = QImageReader(path).size(); !size.isEmpty())
        return size;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // WebP container, extended file format: "RIFF", a size, "WEBP", the chunk "VP8X" with its size,
    // flags, and both sides less one in 24 bits, the lowest first.
    const QByteArray head = file.read(30);
    if (head.size() < 30 || !head.startsWith("RIFF") || head.sliced(8, 8) != "WEBPVP8X")
        return {};
    const auto side = [&head](qsizetype at) {
        const auto byte = [&head](qsizetype each) { return static_cast<quint8>(head[each]); };
        return 1 + (byte(at) | byte(at + 1) << 8 | byte(at + 2) << 16);
    };
    return {side(24), side(27)};
}

QImage firstPicture(const QString &path) {
    QImageReader reader(path);
    const QImage picture = reader.read();
    if (picture.width() <= longestSide && picture.height() <= longestSide)
        return picture;
    return picture.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
