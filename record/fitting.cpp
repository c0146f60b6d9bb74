// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/fitting.h"

#include <cmath>

namespace {

constexpr double stepsPerWidth = 50.0;
/// Far beyond what any screen needs; an area of absurd size must not hold the program up.
constexpr int mostSteps = 4'000'000;

struct Size {
    double width;
    double height;
};

/// One step of an image, and how its other dimension follows.
struct Steps {
    double width;
    double height;
    double ratio;

    /// The size one step larger (direction 1) or smaller (direction -1).
    Size next(Size from, double direction) const {
        if (ratio > 0.0) {
            const double grown = from.width + direction * width;
            return {grown, grown / ratio};
        }
        const double grown = from.height + direction * height;
        return {grown / ratio, grown};
    }
};

bool fits(Size size, Size area) { return size.width <= area.width && size.height <= area.height; }

Size grow(Size size, Size area, const Steps &steps) {
    for (int step = 0; step < mostSteps; ++step) {
        const Size larger = steps.next(size, 1.0);
        if (!fits(larger, area))
            break;
        size = larger;
        if (size.width >= area.width && size.height >= area.height)
            break;
    }
    return size;
}

Size shrink(Size size, Size area, const Steps &steps) {
    for (int step = 0; step < mostSteps; ++step) {
        const Size smaller = steps.next(size, -1.0);
        if (fits(smaller, area))
            break;
        size = smaller;
    }
    return size;
}

/// Half of what is left beside the image, in single precision.
double offset(double area, double size) { return static_cast<float>((area - size) * 0.5); }

bool isDrawable(double imageWidth, double imageHeight, double areaWidth, double areaHeight) {
    // Written so that undefined numbers fail, too.
    return imageWidth >= 1.0 && imageHeight >= 1.0 && areaWidth >= 0.0 && areaHeight >= 0.0 &&
           std::isfinite(imageWidth) && std::isfinite(imageHeight) && std::isfinite(areaWidth) &&
           std::isfinite(areaHeight);
}

} // namespace

FittingFrame bestFitFrame(double imageWidth, double imageHeight, double areaWidth,
                          double areaHeight) {
    if (!isDrawable(imageWidth, imageHeight, areaWidth, areaHeight))
        return {};
    const Steps steps{static_cast<float>(imageWidth / stepsPerWidth),
                      static_cast<float>(imageHeight / stepsPerWidth),
                      static_cast<float>(imageWidth / imageHeight)};
    const Size area{areaWidth, areaHeight};
    Size size{imageWidth, imageHeight};
    if (areaWidth > imageWidth || areaHeight > imageHeight)
        size = grow(size, area, steps);
    else if (imageWidth > areaWidth || imageHeight > areaHeight)
        size = shrink(size, area, steps);
    return {offset(areaWidth, size.width), offset(areaHeight, size.height), size.width,
            size.height};
}
