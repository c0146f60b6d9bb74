// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <concepts>
#include <limits>

/// The number cut toward zero; beyond the range of `Whole` the nearest end of it, and 0 for NaN. A
/// plain cast is undefined there.
template <std::signed_integral Whole, std::floating_point Number> Whole saturated(Number value) {
    // A power of two, and so exact; the highest whole number itself may not be.
    constexpr Whole half = std::numeric_limits<Whole>::max() / 2 + 1;
    constexpr Number beyond = static_cast<Number>(half) * Number{2};
    if (std::isnan(value))
        return 0;
    if (value >= beyond)
        return std::numeric_limits<Whole>::max();
    if (value < -beyond)
        return std::numeric_limits<Whole>::min();
    return static_cast<Whole>(value);
}
