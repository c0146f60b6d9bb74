// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/saturated.h"

#include <cmath>
#include <cstdint>

/// A typed size that is tied to the original's aspect ratio: the derived side is rounded up, the
/// typed one cut down, so that a round trip need not return to where it began. In single precision
/// throughout, save for the ratio's own division. Pixels.
namespace aspect_ratio {

/// Width over height.
inline float ratio(double width, double height) { return static_cast<float>(width / height); }

/// The whole pixels of a side.
template <typename Float> std::int64_t cut(Float value) { return saturated<std::int64_t>(value); }

inline std::int64_t heightForWidth(float width, float ratio) {
    return cut(std::ceil(width / ratio));
}

inline std::int64_t widthForHeight(float height, float ratio) {
    return cut(std::ceil(ratio * height));
}

} // namespace aspect_ratio
