// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image.h"

#include <QImage>
#include <QSize>

/// Scales images to the size at which a view shows them, and remembers the last result: an image
/// that is shown again costs nothing. For the screen only; what is stored is never scaled.
class ImageScaler {
public:
    enum class Care {
        /// Every source pixel counts: for a picture that stands still.
        Fine,
        /// Halved as often as goes, then between the nearest four pixels: a third of the cost,
        /// for pictures in motion.
        Quick,
    };

    /// `image` at the size `pixels` (device pixels, not empty), over black where it is transparent,
    /// for a screen with `ratio` pixels to a point. A fine result serves for quick as well. The
    /// picture is valid until the next call.
    const QImage &scaled(const Image &image, QSize pixels, double ratio, Care care);

private:
    Image from_;
    QImage result_;
    Care care_ = Care::Fine;
};
