// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// Numbers of a grab: how large a scaled one is, which pixels a region covers.

/// A size in points, in single precision.
struct ScaledSize {
    float width;
    float height;
};

/// The size `width` by `height` scaled by `percentage`, the smaller side following the larger one
/// through their ratio in single precision. Both sides are above 0.
ScaledSize scaledByPercentage(double width, double height, float percentage);

/// A rectangle of pixels, origin at the upper left.
struct PixelRectangle {
    int left;
    int top;
    int width;
    int height;
};

/// The pixels that a region covers in a grab that is `grabHeight` high; x, y and the size in the
/// grab's units, (x, y) from its lower left corner. The size is cut to whole pixels, as the size
/// that the user reads, and the place rounded to the nearest one. 0 by 0 for a region below one
/// pixel, or with numbers that no screen has.
PixelRectangle pixelsToCut(double x, double y, double width, double height, int grabHeight);
