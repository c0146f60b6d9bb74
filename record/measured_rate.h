// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Rates of a recording, in frames per second. Whole rates lie from 1 to 60 everywhere: playback
/// and the lists of rates rely on it.
inline constexpr std::uint64_t lowestRate = 1;
inline constexpr std::uint64_t highestRate = 60;

/// What a recording has counted.
struct RecordingCounts {
    /// Frames that fell into counted seconds, and how many seconds were counted.
    std::int64_t countedFrames = 0;
    std::uint64_t countedSeconds = 0;
    /// All frames stored, and the seconds that really passed in the recording state.
    std::uint64_t storedFrames = 0;
    double passedSeconds = 0.0;
};

/// The rate at which frames were really taken: counted frames by counted seconds, rounded up, in
/// single precision. A recording too short to have counted any goes by its stored frames and the
/// time that really passed.
std::uint64_t measuredRate(const RecordingCounts &counts);

/// Seconds between two captures at this rate: computed in single precision, so 5 frames per second
/// are 0.20000000298... seconds. A rate of 0 gives infinity.
double captureInterval(std::uint64_t framesPerSecond);
