// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/frame_timing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ostream>

using namespace frame_timing;

namespace frame_timing {
std::ostream &operator<<(std::ostream &out, const TimedFrame &frame) {
    return out << frame.source << ':' << frame.delay;
}
} // namespace frame_timing

TEST(FrameTiming, showsEveryFrameOnceAndRoundsWithoutAddingUp) {
    // 9.83 a second: 33 frames take 3.357 seconds.
    const auto frames = timedFrames({.kept = FrameRuns::of(7, 33), .recordedRate = 9.83}, gifTicks);
    ASSERT_EQ(frames.size(), 33u);
    EXPECT_EQ(length(frames), 336u);
    for (std::size_t index = 0; index < frames.size(); ++index) {
        EXPECT_EQ(frames[index].source, 7 + index);
        EXPECT_NEAR(static_cast<double>(frames[index].delay), 10.17, 1.0);
    }
    EXPECT_EQ(timedFrames({.kept = FrameRuns::of(0, 3), .recordedRate = 5.0}, gifTicks),
              (std::vector<TimedFrame>{{0, 20}, {1, 20}, {2, 20}}));
    EXPECT_EQ(timedFrames({.kept = FrameRuns::of(0, 3), .recordedRate = 60.0}, webpTicks),
              (std::vector<TimedFrame>{{0, 17}, {1, 16}, {2, 17}}));
}

TEST(FrameTiming, dropsOrRepeatsForAChosenRateAndKeepsTheSpeed) {
    EXPECT_EQ(timedFrames({.kept = FrameRuns::of(0, 6), .recordedRate = 10.0, .chosenRate = 5.0},
                          gifTicks),
              (std::vector<TimedFrame>{{0, 20}, {2, 20}, {4, 20}}));
    EXPECT_EQ(timedFrames({.kept = FrameRuns::of(0, 2), .recordedRate = 10.0, .chosenRate = 20.0},
                          gifTicks),
              (std::vector<TimedFrame>{{0, 5}, {0, 5}, {1, 5}, {1, 5}}));
    EXPECT_EQ(
        timedFrames(
            {.kept = FrameRuns::of(0, 4), .recordedRate = 10.0, .chosenRate = 10.0, .speed = 2.0},
            gifTicks),
        (std::vector<TimedFrame>{{0, 10}, {2, 10}}));
    // A rate that asks for less than one frame.
    EXPECT_EQ(timedFrames({.kept = FrameRuns::of(0, 3), .recordedRate = 10.0, .chosenRate = 1.0},
                          gifTicks),
              (std::vector<TimedFrame>{{0, 30}}));
}

TEST(FrameTiming, neverWritesADelayThatViewersDoNotHonour) {
    const Request sixty{.kept = FrameRuns::of(0, 60), .recordedRate = 60.0};
    const auto frames = timedFrames(sixty, gifTicks);
    ASSERT_EQ(frames.size(), 50u);
    EXPECT_TRUE(isThinned(sixty, gifTicks));
    EXPECT_FALSE(isThinned(sixty, webpTicks));
    EXPECT_FALSE(isThinned({.kept = FrameRuns::of(0, 50), .recordedRate = 50.0}, gifTicks));
    EXPECT_EQ(length(frames), 100u);
    // Fifty a second, measured where a frame more fell into the time: all of them are shown.
    EXPECT_EQ(timedFrames({.kept = FrameRuns::of(0, 155), .recordedRate = 50.1}, gifTicks).size(),
              155u);
    for (std::size_t index = 1; index < frames.size(); ++index) {
        const std::uint64_t step = frames[index].source - frames[index - 1].source;
        EXPECT_TRUE(step == 1 || step == 2) << "dropped evenly";
    }
    // So short that there is not even time for one frame.
    EXPECT_EQ(
        timedFrames({.kept = FrameRuns::of(0, 3), .recordedRate = 60.0, .speed = 4.0}, gifTicks),
        (std::vector<TimedFrame>{{0, 2}}));
    EXPECT_TRUE(timedFrames({.kept = FrameRuns::of(0, 0)}, gifTicks).empty());
}

TEST(FrameTiming, holdsTheLastFrameAtAnySpeed) {
    const Request held{
        .kept = FrameRuns::of(0, 4), .recordedRate = 10.0, .speed = 2.0, .hold = 1.5};
    EXPECT_EQ(timedFrames(held, gifTicks),
              (std::vector<TimedFrame>{{0, 5}, {1, 5}, {2, 5}, {3, 155}}));
    EXPECT_NEAR(rate(timedFrames(held, gifTicks), gifTicks, held.hold), 20.0, 1e-9);
    // A video has no delays: the last frame comes again.
    const auto video = timedFrames(held, videoTicks);
    ASSERT_EQ(video.size(), 4u + 30u);
    EXPECT_EQ(video.back(), video[3]);
    EXPECT_NEAR(seconds(video, videoTicks), 1.7, 1e-9);
}

TEST(FrameTiming, isTrueToTheTickForEveryRateSpeedAndLength) {
    for (const Ticks ticks : {gifTicks, webpTicks})
        for (const double recorded : {0.3, 0.97, 4.85, 9.83, 14.99, 24.0, 29.7, 43.2, 59.94, 61.0})
            for (const double speed : speeds)
                for (const double chosen : {0.0, 1.0, 7.0, 10.0, 25.0, 50.0, 60.0})
                    for (const std::uint64_t count : {3u, 17u, 100u, 599u}) {
                        const Request request{.kept = FrameRuns::of(5, count),
                                              .recordedRate = recorded,
                                              .chosenRate = chosen > 0.0 ? std::optional(chosen)
                                                                         : std::nullopt,
                                              .speed = speed};
                        const auto frames = timedFrames(request, ticks);
                        SCOPED_TRACE(testing::Message() << count << " at " << recorded << " to "
                                                        << chosen << ", " << speed << " times");
                        ASSERT_FALSE(frames.empty());
                        const double wanted = static_cast<double>(count) / recorded / speed;
                        ASSERT_LE(std::abs(seconds(frames, ticks) - wanted),
                                  1.5 * static_cast<double>(ticks.shortest) /
                                      static_cast<double>(ticks.perSecond));
                        const auto [least, most] =
                            std::ranges::minmax(frames, {}, &TimedFrame::delay);
                        ASSERT_GE(least.delay, ticks.shortest);
                        ASSERT_LE(most.delay, least.delay + 1) << "even";
                        ASSERT_TRUE(std::ranges::is_sorted(frames, {}, &TimedFrame::source));
                        ASSERT_EQ(frames.front().source, 5u);
                        ASSERT_LT(frames.back().source, 5 + count);
                    }
}
