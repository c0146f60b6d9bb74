// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/image_reader.h"

#include <QImage>
#include <QPointF>
#include <QRegion>
#include <QSize>

#include <vector>

/// Scales images to the size at which a view shows them, and remembers the last result: an image
/// that is shown again costs nothing, and one that came out of it by a small change costs that
/// change. For the screen only; what is stored is never scaled.
class ImageScaler {
public:
    enum class Care {
        /// Every source pixel counts: for a picture that does not move.
        Fine,
        /// Halved as often as goes, then between the nearest four pixels: a third of the cost,
        /// for pictures in motion.
        Quick,
    };

    /// `image` at the size `pixels` (device pixels, not empty), over black where it is transparent,
    /// for a screen with `ratio` pixels to a point. A fine result serves for quick as well. The
    /// picture is valid until the next call.
    const QImage &scaled(const Image &image, QSize pixels, double ratio, Care care);

    /// Where a result of the size `pixels` changes (device pixels) when the image that it was
    /// scaled from, which has the size `image`, changes within `region`.
    static QRegion affected(const QRegion &region, QSize image, QSize pixels);

    /// The place nearest to `corner` (points) on the grid of a screen with `ratio` pixels to a
    /// point: a picture of whole pixels that is painted elsewhere is scaled once more.
    static QPointF onGrid(QPointF corner, double ratio);

private:
    void paint(const QImage &picture, const QRegion &where, bool overBlack);
    QImage shrunkNear(const QImage &picture, QSize size, const QRegion &changed);

    Image from_;
    ImageReader reader_;
    std::vector<QImage> halves_;
    QImage result_;
    Care care_ = Care::Fine;
};
