// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/frame_timing.h"

#include "record/rates.h"

#include <algorithm>
#include <cmath>

namespace frame_timing {

static_assert(highestGifRate == highestRate(gifTicks));

namespace {

/// A length as a number of things of which there are so many a second, to the nearest one.
std::uint64_t nearest(double value) {
    // Beyond what any file holds, and what a double tells apart: no number at all counts as none.
    constexpr double most = 9007199254740992.0; // 2^53
    return value > 0.0 ? static_cast<std::uint64_t>(std::round(std::min(value, most))) : 0;
}

double trueSeconds(const Request &request) {
    return static_cast<double>(request.kept.count()) / request.recordedRate / request.speed;
}

std::uint64_t wantedFrames(const Request &request) {
    if (!request.chosenRate)
        return request.kept.count();
    return std::max<std::uint64_t>(nearest(trueSeconds(request) * *request.chosenRate), 1);
}

std::uint64_t wholeTicks(const Request &request, Ticks ticks) {
    const std::uint64_t whole =
        nearest(trueSeconds(request) * static_cast<double>(ticks.perSecond));
    // A recording at the very highest rate may have a frame more than fits, by chance: that is not
    // worth a jump in what is shown.
    constexpr std::uint64_t unnoticed = 50; // one part in so many of the length
    const std::uint64_t needed = wantedFrames(request) * ticks.shortest;
    if (needed > whole && needed - whole <= std::min(ticks.shortest, whole / unnoticed))
        return needed;
    return std::max(whole, ticks.shortest);
}

void holdLast(std::vector<TimedFrame> &frames, std::uint64_t held, Ticks ticks) {
    const TimedFrame last = frames.back();
    if (!ticks.isSteady)
        frames.back().delay += held;
    else
        frames.insert(frames.end(), (held + last.delay / 2) / last.delay, last);
}

} // namespace

std::vector<TimedFrame> timedFrames(const Request &request, Ticks ticks) {
    if (request.kept.isEmpty())
        return {};
    const std::uint64_t count = request.kept.count();
    const std::uint64_t whole = wholeTicks(request, ticks);
    const std::uint64_t frames = std::min(wantedFrames(request), whole / ticks.shortest);
    // Half up: the tick at which frame number `index` truly begins.
    const auto begin = [whole, frames](std::uint64_t index) {
        return (2 * whole * index + frames) / (2 * frames);
    };
    std::vector<TimedFrame> result;
    result.reserve(frames);
    for (std::uint64_t index = 0; index < frames; ++index)
        result.push_back({.source = request.kept.at(index * count / frames),
                          .delay = begin(index + 1) - begin(index)});
    holdLast(result, heldTicks(request.hold, ticks), ticks);
    return result;
}

std::uint64_t heldTicks(double hold, Ticks ticks) {
    return nearest(hold * static_cast<double>(ticks.perSecond));
}

std::uint64_t length(std::span<const TimedFrame> frames) {
    std::uint64_t sum = 0;
    for (const TimedFrame &frame : frames)
        sum += frame.delay;
    return sum;
}

double beginOfLast(std::span<const TimedFrame> frames, Ticks ticks) {
    if (frames.empty())
        return 0.0;
    return static_cast<double>(length(frames) - frames.back().delay) /
           static_cast<double>(ticks.perSecond);
}

double seconds(std::span<const TimedFrame> frames, Ticks ticks) {
    return static_cast<double>(length(frames)) / static_cast<double>(ticks.perSecond);
}

double rate(std::span<const TimedFrame> frames, Ticks ticks, double hold) {
    return frames.empty() ? 0.0
                          : static_cast<double>(frames.size()) / (seconds(frames, ticks) - hold);
}

bool isThinned(const Request &request, Ticks ticks) {
    return !request.kept.isEmpty() &&
           wantedFrames(request) > wholeTicks(request, ticks) / ticks.shortest;
}

} // namespace frame_timing
