// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/grab_geometry.h"

#include <cmath>

namespace {

/// Far beyond any desktop, and small enough that sums of two stay in range.
constexpr double farthest = 1 << 24;

bool isOnSomeDesktop(double number) { return std::abs(number) <= farthest; }

} // namespace

ScaledSize scaledByPercentage(double width, double height, float percentage) {
    const float w = static_cast<float>(width);
    const float h = static_cast<float>(height);
    if (width >= height) {
        const float newWidth = static_cast<float>(width * percentage / 100);
        return {newWidth, newWidth / (w / h)};
    }
    const float newHeight = static_cast<float>(height * percentage / 100);
    return {newHeight / (h / w), newHeight};
}

PixelRectangle pixelsToCut(double x, double y, double width, double height, int grabHeight) {
    const bool sound = isOnSomeDesktop(x) && isOnSomeDesktop(y) && width >= 1.0 && height >= 1.0 &&
                       isOnSomeDesktop(width) && isOnSomeDesktop(height);
    if (!sound)
        return {0, 0, 0, 0};
    return {static_cast<int>(std::lround(x)),
            static_cast<int>(std::lround(grabHeight - y - height)), static_cast<int>(width),
            static_cast<int>(height)};
}
