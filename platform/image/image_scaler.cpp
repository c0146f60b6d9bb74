// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/image_scaler.h"

#include <QPainter>

#include <cmath>
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

/// A picture half as wide and high: each pixel is the mean of four. What has no partner at the
/// right and lower edge is left out. Brings `half` up to date within `where`.
void halve(const QImage &picture, QImage &half, const QRect &where) {
    for (int y = where.top(); y <= where.bottom(); ++y) {
        const uchar *upper = picture.constScanLine(2 * y);
        const uchar *lower = picture.constScanLine(2 * y + 1);
        auto *row = reinterpret_cast<std::uint32_t *>(half.scanLine(y));
        for (int x = where.left(); x <= where.right(); ++x) {
            const std::uint64_t above = twoPixels(upper, x);
            const std::uint64_t below = twoPixels(lower, x);
            const std::uint32_t even = folded((above & everyOtherByte) + (below & everyOtherByte));
            const std::uint32_t odd =
                folded(((above >> 8) & everyOtherByte) + ((below >> 8) & everyOtherByte));
            row[x] = ((even >> 2) & everyOtherByteOfOne) | ((odd << 6) & ~everyOtherByteOfOne);
        }
    }
}

/// The pixels of a half that come out of these.
QRegion halved(const QRegion &region, QSize half) {
    QRegion result;
    for (const QRect &rect : region)
        result += QRect(QPoint(rect.left() / 2, rect.top() / 2),
                        QPoint(rect.right() / 2, rect.bottom() / 2));
    return result.intersected(QRect(QPoint(), half));
}

/// Interpolation reaches this far beyond a pixel that changed, on either side.
constexpr int reach = 2;

/// Putting many small rectangles together costs more than painting what lies between them.
constexpr int mostRectangles = 16;

QRegion simple(const QRegion &region) {
    return region.rectCount() > mostRectangles ? QRegion(region.boundingRect()) : region;
}

} // namespace

QRegion ImageScaler::affected(const QRegion &region, QSize image, QSize pixels) {
    if (image.isEmpty())
        return QRect(QPoint(), pixels);
    const double across = static_cast<double>(pixels.width()) / image.width();
    const double down = static_cast<double>(pixels.height()) / image.height();
    // A halved picture's pixel represents several, and so does what is interpolated from it.
    const int x = reach * (1 + static_cast<int>(1 / across));
    const int y = reach * (1 + static_cast<int>(1 / down));
    QRegion result;
    for (const QRect &rect : simple(region)) {
        const QRect wide = rect.adjusted(-x, -y, x, y);
        result += QRect(QPoint(static_cast<int>(std::floor(wide.left() * across)),
                               static_cast<int>(std::floor(wide.top() * down))),
                        QPoint(static_cast<int>(std::ceil((wide.right() + 1) * across)),
                               static_cast<int>(std::ceil((wide.bottom() + 1) * down))));
    }
    return result.intersected(QRect(QPoint(), pixels));
}

QPointF ImageScaler::onGrid(QPointF corner, double ratio) {
    return {std::round(corner.x() * ratio) / ratio, std::round(corner.y() * ratio) / ratio};
}

/// Interpolation looks at four pixels only: below one half it would pass over whole lines.
QImage ImageScaler::shrunkNear(const QImage &picture, QSize size, const QRegion &changed) {
    QImage nearest = picture;
    QRegion stale = changed;
    std::size_t level = 0;
    for (; nearest.width() >= 2 * size.width() && nearest.height() >= 2 * size.height(); ++level) {
        if (level == halves_.size())
            halves_.emplace_back();
        QImage &half = halves_[level];
        const QSize wanted(nearest.width() / 2, nearest.height() / 2);
        if (half.size() != wanted || half.format() != picture.format()) {
            half = QImage(wanted, picture.format());
            stale = QRect(QPoint(), nearest.size());
        }
        stale = halved(stale, wanted);
        for (const QRect &rect : stale)
            halve(nearest, half, rect);
        nearest = half;
    }
    halves_.resize(level);
    return nearest;
}

void ImageScaler::paint(const QImage &picture, const QRegion &where, bool overBlack) {
    result_.setDevicePixelRatio(1.0);
    QPainter painter(&result_);
    painter.setClipRegion(where);
    if (overBlack)
        painter.fillRect(result_.rect(), Qt::black);
    else
        painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(result_.rect(), picture);
}

const QImage &ImageScaler::scaled(const Image &image, QSize pixels, double ratio, Care care) {
    const bool sameTarget = result_.size() == pixels && result_.devicePixelRatio() == ratio;
    if (from_.sameAs(image) && sameTarget && (care == Care::Quick || care_ == Care::Fine))
        return result_;
    const QImage &picture = reader_.read(image);
    const bool goesOn = sameTarget && care == Care::Quick && care_ == Care::Quick;
    const QRegion everywhere(QRect(QPoint(), pixels));
    // The last result's memory serves again: fresh pages would cost more than the scaling.
    if (result_.size() != pixels || result_.format() != QImage::Format_RGB32)
        result_ = QImage(pixels, QImage::Format_RGB32);
    if (care == Care::Fine) {
        halves_.clear();
        paint(picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), everywhere,
              image.hasAlpha());
    } else {
        const QRegion changed = simple(reader_.changed());
        paint(shrunkNear(picture, pixels, changed),
              goesOn ? affected(changed, image.size(), pixels) : everywhere, image.hasAlpha());
    }
    result_.setDevicePixelRatio(ratio);
    from_ = image;
    care_ = care;
    return result_;
}
