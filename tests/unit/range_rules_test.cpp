// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/range_rules.h"

#include <gtest/gtest.h>

#include <limits>

using namespace range_rules;

TEST(RangeRules, aPressGoesToTheNearerHandleWithinReachAndToTheOneThatCanStillMove) {
    constexpr Handle menor = Handle::Menor;
    constexpr Handle maior = Handle::Maior;
    const struct {
        Handles handles;
        double x;
        std::optional<Handle> goesTo;
    } cases[] = {
        {{10, 90}, 100, menor},    {{10, 90}, 88, menor},    {{10, 90}, 87.9, {}},
        {{10, 90}, 124, menor},    {{10, 90}, 124.1, {}},    {{10, 90}, 500, {}},
        {{10, 90}, 888, maior},    {{10, 90}, 912, maior},   {{10, 90}, 912.1, {}},
        {{10, 14}, 117, menor},    {{10, 14}, 123, maior}, // in reach of both
        {{50, 50}, 505, menor},    {{50, 50}, 495, maior}, // beside one another, each can move
        {{50, 50.5f}, 498, maior}, {{0, 1}, 9, menor},     // one over the other
        {{0, 0}, 5, maior},        {{100, 100}, 995, menor}, {{0, 100}, 0, menor},
    };
    for (const auto &[handles, x, goesTo] : cases)
        EXPECT_EQ(handleNear(handles, x, 1000), goesTo) << handles.menor << " press at " << x;
    EXPECT_FALSE(handleNear({0, 100}, std::numeric_limits<double>::quiet_NaN(), 1000));
}

TEST(RangeRules, aDragFollowsThePointerAndStaysAtTheEndBeyondIt) {
    const Handles handles{10.0f, 90.0f};
    EXPECT_EQ(dragged(handles, Handle::Menor, 150, 600)->menor, 25.0f);
    EXPECT_EQ(dragged(handles, Handle::Maior, 450, 600)->maior, 75.0f);
    for (const double x : {0.0, -1.0, -1e300})
        EXPECT_EQ(dragged(handles, Handle::Menor, x, 600)->menor, 0.0f) << x;
    for (const double x : {600.0, 700.0, std::numeric_limits<double>::infinity()})
        EXPECT_EQ(dragged(handles, Handle::Maior, x, 600)->maior, 100.0f) << x;
    EXPECT_FALSE(dragged(handles, Handle::Menor, std::numeric_limits<double>::quiet_NaN(), 600));
    EXPECT_FALSE(dragged(handles, Handle::Menor, 1, 0));
}

TEST(RangeRules, passingHandlesAreSwappedAtEachStepAndTheFurthestPointStays) {
    Handles handles{20.0f, 50.0f};
    const auto drag = [&handles](double x) { handles = *dragged(handles, Handle::Menor, x, 100); };
    drag(60);
    EXPECT_EQ(handles.menor, 50.0f);
    EXPECT_EQ(handles.maior, 60.0f);
    drag(70);
    EXPECT_EQ(handles.menor, 60.0f);
    EXPECT_EQ(handles.maior, 70.0f);
    drag(65);
    EXPECT_EQ(handles.menor, 65.0f);
    EXPECT_EQ(handles.maior, 70.0f);
    const Handles upperBelow = *dragged({20.0f, 50.0f}, Handle::Maior, 10, 100);
    EXPECT_EQ(upperBelow.menor, 10.0f);
    EXPECT_EQ(upperBelow.maior, 20.0f);
}

TEST(RangeRules, percentagesMapToCeilingsOfSinglePrecisionProducts) {
    const struct {
        float percent;
        std::uint64_t frames;
        std::uint64_t frame;
    } cases[] = {{0.0f, 10, 0},   {100.0f, 10, 10}, {21.0f, 10, 3},       {29.0f, 10, 3},
                 {90.1f, 10, 10}, {0.001f, 10, 1},  {33.333332f, 3, 1},   {50.0f, 0, 0},
                 {7.0f, 100, 7},  {14.0f, 50, 7},   {28.999999f, 100, 29}};
    for (const auto &c : cases)
        EXPECT_EQ(frameAt(c.percent, c.frames), c.frame) << c.percent << " of " << c.frames;
}

TEST(RangeRules, everyFrameNumberHasAPercentageThatLeadsBackToIt) {
    for (const std::uint64_t frames : {1u, 2u, 3u, 7u, 100u, 999u, 72'000u, 200'000u}) {
        const std::uint64_t step = frames < 10'000 ? 1 : 97;
        for (std::uint64_t frame = 0; frame <= frames; frame += step)
            ASSERT_EQ(frameAt(percentFor(frame, frames), frames), frame) << "of " << frames;
    }
    EXPECT_EQ(percentFor(10, 10), 100.0f);
    EXPECT_EQ(percentFor(0, 10), 0.0f);
}

TEST(RangeRules, thePlayheadStandsWhereItsFrameBegins) {
    EXPECT_EQ(playhead(5, 10, 640).x, 320.0);
    EXPECT_EQ(playhead(1, 3, 600).x, 200.0);
    EXPECT_EQ(playhead(0, 0, 600).x, 0.0);
    for (std::uint64_t frame = 0; frame < 18'000; frame += 7)
        ASSERT_EQ(frameAtX(playhead(frame, 18'000, 696).x + 1e-6, 18'000, 696), frame);
}

TEST(RangeRules, whatIsShownAndExportedExists) {
    EXPECT_EQ(existingFrame(3, 10), 3u);
    EXPECT_EQ(existingFrame(10, 10), 9u);
    EXPECT_FALSE(existingFrame(0, 0));
    EXPECT_EQ(frameAtX(0, 10, 100), 0u);
    EXPECT_EQ(frameAtX(19.9, 10, 100), 1u);
    EXPECT_EQ(frameAtX(100, 10, 100), 9u) << "beyond the end";
    EXPECT_EQ(frameAtX(-5, 10, 100), 0u);
    EXPECT_EQ(frameAtX(5, 0, 100), 0u);
    EXPECT_EQ(placeOfFrames(2, 4, 10, 100).x, 20.0);
    EXPECT_EQ(placeOfFrames(2, 4, 10, 100).width, 30.0);
    EXPECT_EQ(placeOfFrames(5, 5, 1000, 100).width, thinnest);
}
