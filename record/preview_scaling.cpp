// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/preview_scaling.h"

#include <QPainter>

#include <cstdint>
#include <cstring>

namespace {

/// Every other byte of two pixels, with room for a carry beside each.
constexpr std::uint64_t everyOtherByte = 0x00ff00ff00ff00ffu;
constexpr std::uint32_t everyOtherByteOfOne = 0x00ff00ffu;

std::uint64_t twoPixels(const uchar *row, int pair) {
    std::uint64_t pixels = 0;
    std::memcpy(&pixels, row + static_cast<std::ptrdiff_t>(pair) * 8, sizeof pixels);
    return pixels;
}

/// The sum of the two halves, byte by byte.
std::uint32_t folded(std::uint64_t sums) {
    return static_cast<std::uint32_t>(sums) + static_cast<std::uint32_t>(sums >> 32);
}

/// Half as wide and high: each pixel is the mean of four. What has no partner at the right and
/// lower edge is left out.
QImage halved(const QImage &picture) {
    QImage half(picture.width() / 2, picture.height() / 2, picture.format());
    for (int y = 0; y < half.height(); ++y) {
        const uchar *upper = picture.constScanLine(2 * y);
        const uchar *lower = picture.constScanLine(2 * y + 1);
        auto *row = reinterpret_cast<std::uint32_t *>(half.scanLine(y));
        for (int x = 0; x < half.width(); ++x) {
            const std::uint64_t above = twoPixels(upper, x);
            const std::uint64_t below = twoPixels(lower, x);
            const std::uint32_t even = folded((above & everyOtherByte) + (below & everyOtherByte));
            const std::uint32_t odd =
                folded(((above >> 8) & everyOtherByte) + ((below >> 8) & everyOtherByte));
            row[x] = ((even >> 2) & everyOtherByteOfOne) | ((odd << 6) & ~everyOtherByteOfOne);
        }
    }
    return half;
}

} // namespace

QImage scaledForPreview(const QImage &picture, QSize size) {
    // Interpolation looks at four pixels only: beyond one half it would pass over whole lines.
    QImage source = picture;
    while (source.width() >= 2 * size.width() && source.height() >= 2 * size.height())
        source = halved(source);
    if (source.size() == size)
        return source;
    QImage scaled(size, picture.format());
    QPainter painter(&scaled);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(scaled.rect(), source);
    return scaled;
}
