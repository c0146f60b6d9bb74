// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/measured_rate.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

float quotient(const RecordingCounts &counts) {
    if (counts.countedSeconds > 0 && counts.countedFrames > 0)
        return static_cast<float>(counts.countedFrames) / static_cast<float>(counts.countedSeconds);
    if (counts.storedFrames == 0)
        return 0.0f;
    if (!(counts.passedSeconds > 0.0))
        return static_cast<float>(highestRate);
    return static_cast<float>(counts.storedFrames) / static_cast<float>(counts.passedSeconds);
}

} // namespace

std::uint64_t measuredRate(const RecordingCounts &counts) {
    // Clamped before the conversion, which has no meaning for what 64 bits cannot hold.
    const float rate = std::clamp(std::ceil(quotient(counts)), static_cast<float>(lowestRate),
                                  static_cast<float>(highestRate));
    return static_cast<std::uint64_t>(rate);
}

double captureInterval(std::uint64_t framesPerSecond) {
    if (framesPerSecond == 0)
        return std::numeric_limits<double>::infinity();
    return 1.0f / static_cast<float>(framesPerSecond);
}
