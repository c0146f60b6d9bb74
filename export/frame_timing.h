// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "trim/frame_runs.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Which frames of a recording an animation holds, and how long it shows each: from what is kept,
/// the rate at which it was recorded, the rate that was chosen and the speed. Every encoder goes by
/// this. Pure arithmetic.
///
/// The length is true: what was recorded, by the speed, to the nearest tick (one shortest delay
/// more where that saves a frame). Delays are whole ticks; each begins where the one before ended
/// and ends where its frame truly ends, rounded, so that rounding never adds up.
namespace frame_timing {

/// What a file format counts delays in.
struct Ticks {
    std::uint64_t perSecond = 1;
    /// The shortest delay that viewers honour. One below it is played many times too long, so none
    /// is ever written: there are fewer frames instead.
    std::uint64_t shortest = 1;
    /// All frames are shown equally long: one that is held is repeated.
    bool isSteady = false;
};

/// GIF89a, 23 (Graphic Control Extension): hundredths of a second. Browsers play a delay of 1/100
/// as 10/100.
inline constexpr Ticks gifTicks{.perSecond = 100, .shortest = 2};

/// WebP container, ANMF chunk: milliseconds. Browsers play 10 ms and less as 100 ms.
inline constexpr Ticks webpTicks{.perSecond = 1000, .shortest = 11};

/// A video: microseconds, and as many frames as were asked for.
inline constexpr Ticks videoTicks{.perSecond = 1'000'000, .shortest = 1, .isSteady = true};

/// Frames per second that such a file holds at most.
constexpr std::uint64_t highestRate(Ticks ticks) { return ticks.perSecond / ticks.shortest; }

/// Speeds that can be chosen, slowest first.
inline constexpr double speeds[] = {0.25, 0.5, 1.0, 1.5, 2.0, 4.0};

/// What is asked for.
struct Request {
    /// The frames of the recording that are kept.
    FrameRuns kept = {};
    /// Frames per second, unrounded, above 0.
    double recordedRate = 1.0;
    /// Frames per second that the file is to have; none shows every frame once.
    std::optional<double> chosenRate = {};
    /// How many times as fast as it was recorded, above 0.
    double speed = 1.0;
    /// How much longer the last frame is shown, in seconds, at any speed.
    double hold = 0.0;

    bool operator==(const Request &) const = default;
};

/// One frame of the file.
struct TimedFrame {
    std::uint64_t source = 0; ///< Its number in the recording.
    std::uint64_t delay = 0;  ///< How long it is shown, in ticks.

    bool operator==(const TimedFrame &) const = default;
};

/// The file's frames in order. A chosen rate drops frames of the recording or repeats them, and so
/// do delays that would be too short: evenly, each time showing what the screen showed then. At
/// least one frame, unless nothing is kept.
std::vector<TimedFrame> timedFrames(const Request &request, Ticks ticks);

/// How long the file plays, in ticks.
std::uint64_t length(std::span<const TimedFrame> frames);

/// When the last frame begins, in seconds: 0 without one.
double beginOfLast(std::span<const TimedFrame> frames, Ticks ticks);

/// The ticks that so many seconds of holding take.
std::uint64_t heldTicks(double hold, Ticks ticks);

/// How long the file plays in seconds, and the frames per second that come of it while it is not
/// held; 0 without a frame.
double seconds(std::span<const TimedFrame> frames, Ticks ticks);
double rate(std::span<const TimedFrame> frames, Ticks ticks, double hold = 0.0);

/// Whether there are fewer frames than were asked for, because their delays would be too short.
bool isThinned(const Request &request, Ticks ticks);

} // namespace frame_timing
