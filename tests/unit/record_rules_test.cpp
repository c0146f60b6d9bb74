// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/fitting.h"
#include "record/rates.h"
#include "record/recording_clock.h"
#include "record/stepping_aside.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double undefined = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(Fitting, growsAndShrinksInFiftiethsAndStopsAsTheRuleSays) {
    const struct {
        double imageWidth, imageHeight, areaWidth, areaHeight;
        FittingFrame expected;
    } cases[] = {
        {1000, 500, 500, 500, {-10, 120, 520, 260}}, // Shrunk: one step larger than fits.
        {100, 50, 500, 500, {0, 125, 500, 250}},     // Grown until it meets the edge.
        {300, 600, 520, 300, {110, -150, 300, 600}}, // Too large in one dimension only.
        {640, 400, 640, 400, {0, 0, 640, 400}},
        {100, 100, 101, 150, {0.5, 25, 100, 100}}, // The first step would go too far.
        {0, 0, 300, 200, {0, 0, 0, 0}},
    };
    for (const auto &c : cases) {
        const FittingFrame frame =
            bestFitFrame(c.imageWidth, c.imageHeight, c.areaWidth, c.areaHeight);
        SCOPED_TRACE(testing::Message() << c.imageWidth << " x " << c.imageHeight);
        EXPECT_NEAR(frame.x, c.expected.x, 1e-3);
        EXPECT_NEAR(frame.y, c.expected.y, 1e-3);
        EXPECT_NEAR(frame.width, c.expected.width, 1e-3);
        EXPECT_NEAR(frame.height, c.expected.height, 1e-3);
    }
}

TEST(MeasuredRate, isStoredFramesByTheSecondsRecordedUnrounded) {
    constexpr std::uint64_t chosen = 24;
    const struct {
        RecordingCounts counts;
        double exact;
        std::uint64_t shown;
    } cases[] = {
        {{17, 3.4}, 17 / 3.4, 5},
        {{99, 10.0}, 9.9, 10},
        {{94, 10.0}, 9.4, 9},
        {{3, 10.0}, 0.3, 1},
        {{700, 10.0}, 70.0, 60},
        {{1, 1.0}, 1.0, 1},
        // Too short to be measured, or nothing in it: what was chosen.
        {{0, 3.0}, 24.0, 24},
        {{1, 0.05}, 24.0, 24},
        {{23, 0.99}, 24.0, 24},
        {{5, 0.0}, 24.0, 24},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message()
                     << c.counts.storedFrames << " in " << c.counts.passedSeconds);
        EXPECT_DOUBLE_EQ(measuredRate(c.counts, chosen), c.exact);
        EXPECT_EQ(shownRate(measuredRate(c.counts, chosen)), c.shown);
    }
    EXPECT_EQ(shownRate(undefined), 1u);
    EXPECT_EQ(shownRate(infinite), 60u);
}

TEST(MeasuredRate, fallsBehindWhenMoreThanOneFrameIsMissing) {
    EXPECT_FALSE(fellBehind({5, 1.2}, 5)) << "the first frame came an interval after the start";
    EXPECT_FALSE(fellBehind({599, 10.0}, 60));
    EXPECT_TRUE(fellBehind({430, 10.0}, 60));
    EXPECT_TRUE(fellBehind({3, 2.0}, 5));
    EXPECT_FALSE(fellBehind({3, 0.9}, 5)) << "too short to say so";
    EXPECT_FALSE(fellBehind({0, 10.0}, 5));
}

TEST(RecordingClock, leavesPausesOut) {
    using std::chrono::seconds;
    const RecordingClock::TimePoint start;
    RecordingClock clock;
    EXPECT_EQ(clock.seconds(start + seconds(9)), 0.0);
    clock.run(start);
    clock.run(start + seconds(1)); // Runs already.
    clock.hold(start + seconds(2));
    clock.hold(start + seconds(3));
    EXPECT_EQ(clock.seconds(start + seconds(10)), 2.0);
    clock.run(start + seconds(10));
    EXPECT_EQ(clock.seconds(start + seconds(11)), 3.0);
}

TEST(SteppingAside, waitsForPicturesWithoutOurWindows) {
    using std::chrono::milliseconds;
    constexpr std::chrono::steady_clock::time_point left(std::chrono::hours(5));
    const struct {
        int newest; // milliseconds after they left
        int now;
        bool gone;
    } cases[] = {
        {-100, 700, false},                      // the compositor is still busy with it
        {-100, 2900, false}, {-100, 3000, true}, // they were never in the picture
        {250, 700, false},   {250, 950, true},   // they flew away over a screen that is still
        {590, 610, false},   {600, 610, true},   // over one that moves
        {600, 5000, true},
    };
    for (const auto &[newest, now, gone] : cases)
        EXPECT_EQ(isGoneFromPictures(left + milliseconds(newest), left, left + milliseconds(now)),
                  gone)
            << newest << ' ' << now;
}
