// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Rates of a recording, in frames per second. Rates that can be chosen are whole numbers from 1 to
/// 60; the rate that a recording really has is no whole number, and everything that lasts goes by
/// it.
inline constexpr std::uint64_t lowestRate = 1;
inline constexpr std::uint64_t highestRate = 60;

/// The highest rate at which every frame of a recording gets into a GIF, whose delays are at least
/// 2/100 s (`frame_timing::gifTicks` in export/frame_timing.h).
inline constexpr std::uint64_t highestGifRate = 50;

/// What a recording has counted: its frames, and the seconds spent recording, pauses left out.
struct RecordingCounts {
    std::uint64_t storedFrames = 0;
    double passedSeconds = 0.0;
};

/// The rate at which frames were really taken, unrounded, so that frames ÷ rate is the time that
/// was recorded. A recording of less than a second, or without a frame, has the chosen rate.
double measuredRate(const RecordingCounts &counts, std::uint64_t chosenRate);

/// That rate as it is shown and listed: the nearest whole number from 1 to 60.
std::uint64_t shownRate(double rate);

/// Whether a recording could not keep up with the chosen rate. One frame fewer than were due says
/// nothing: the first one may come a whole interval after the start.
bool fellBehind(const RecordingCounts &counts, std::uint64_t chosenRate);

/// Seconds between two captures at this rate: computed in single precision, so 5 frames per second
/// are 0.20000000298... seconds. A rate of 0 gives infinity.
double captureInterval(std::uint64_t framesPerSecond);
