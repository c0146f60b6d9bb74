// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/rates.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// A recording shorter than this has no rate of its own, in seconds: a frame more or less would
/// change it by half.
constexpr double shortestMeasured = 1.0;

} // namespace

double measuredRate(const RecordingCounts &counts, std::uint64_t chosenRate) {
    if (counts.storedFrames == 0 || !(counts.passedSeconds >= shortestMeasured))
        return static_cast<double>(std::clamp(chosenRate, lowestRate, highestRate));
    return static_cast<double>(counts.storedFrames) / counts.passedSeconds;
}

std::uint64_t shownRate(double rate) {
    // Written so that no number at all gives the lowest rate.
    if (!(rate > static_cast<double>(lowestRate)))
        return lowestRate;
    return static_cast<std::uint64_t>(std::round(std::min(rate, static_cast<double>(highestRate))));
}

bool fellBehind(const RecordingCounts &counts, std::uint64_t chosenRate) {
    const RecordingCounts oneMore{.storedFrames = counts.storedFrames + 1,
                                  .passedSeconds = counts.passedSeconds};
    return counts.storedFrames > 0 && shownRate(measuredRate(oneMore, chosenRate)) < chosenRate;
}

double captureInterval(std::uint64_t framesPerSecond) {
    if (framesPerSecond == 0)
        return std::numeric_limits<double>::infinity();
    return 1.0f / static_cast<float>(framesPerSecond);
}
