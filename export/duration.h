// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

// How long an export is: the rules that need only the range and the rate.

/// A value in single precision as a whole number: 0 when it is below 0 or no number at all, the
/// largest one when it lies beyond (converting such a value directly is undefined).
inline std::uint64_t wholeNumber(float value) {
    constexpr float beyond = 18446744073709551616.0f; // 2^64
    if (!(value > 0.0f))
        return 0;
    return value < beyond ? static_cast<std::uint64_t>(value)
                          : std::numeric_limits<std::uint64_t>::max();
}

/// The expected length of a clip in whole seconds, rounded up, in single precision: the distance of
/// its first and last frame over the recording's rate in frames per second. Without a rate there is
/// no length: 0.
inline std::uint64_t expectedDuration(std::uint64_t firstFrame, std::uint64_t lastFrame,
                                      std::uint64_t rate) {
    if (rate == 0)
        return 0;
    return wholeNumber(
        std::ceil(static_cast<float>(lastFrame - firstFrame) / static_cast<float>(rate)));
}
