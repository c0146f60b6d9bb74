// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

/// A typed size that is tied to the original's aspect ratio: the derived side is rounded up, the
/// typed one cut down, so that a round trip need not return to where it began. In single precision
/// throughout, save for the ratio's own division. Pixels.
namespace aspect_ratio {

/// Width over height.
inline float ratio(double width, double height) { return static_cast<float>(width / height); }

/// Cut toward zero; values beyond the range give the nearest end of it, no number gives 0.
template <typename Float> std::int64_t cut(Float value) {
    constexpr Float beyond = static_cast<Float>(9223372036854775808.0); // 2^63
    if (std::isnan(value))
        return 0;
    if (value >= beyond)
        return std::numeric_limits<std::int64_t>::max();
    if (value < -beyond)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

inline std::int64_t heightForWidth(float width, float ratio) {
    return cut(std::ceil(width / ratio));
}

inline std::int64_t widthForHeight(float height, float ratio) {
    return cut(std::ceil(ratio * height));
}

} // namespace aspect_ratio
