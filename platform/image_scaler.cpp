// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image_scaler.h"

#include <QPainter>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

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

/// Interpolation looks at four pixels only: below one half it would pass over whole lines.
QImage shrunkNear(QImage picture, QSize size) {
    while (picture.width() >= 2 * size.width() && picture.height() >= 2 * size.height())
        picture = halved(picture);
    return picture;
}

} // namespace

const QImage &ImageScaler::scaled(const Image &image, QSize pixels, double ratio, Care care) {
    const bool known =
        from_.sameAs(image) && result_.size() == pixels && result_.devicePixelRatio() == ratio;
    if (known && (care == Care::Quick || care_ == Care::Fine))
        return result_;
    QImage picture = image.toQImage();
    if (care == Care::Fine)
        picture = picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    else
        picture = shrunkNear(std::move(picture), pixels);
    // The last result's memory serves again: fresh pages would cost more than the scaling.
    if (result_.size() != pixels || result_.format() != QImage::Format_RGB32)
        result_ = QImage(pixels, QImage::Format_RGB32);
    result_.setDevicePixelRatio(1.0);
    if (image.hasAlpha())
        result_.fill(Qt::black);
    QPainter painter(&result_);
    if (!image.hasAlpha())
        painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(QPoint(0, 0), pixels), picture);
    painter.end();
    result_.setDevicePixelRatio(ratio);
    from_ = image;
    care_ = care;
    return result_;
}
