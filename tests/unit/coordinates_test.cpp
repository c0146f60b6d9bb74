// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/panel_place.h"
#include "shell/coordinates.h"

#include <gtest/gtest.h>

#include <string>

using coordinates::Points;
using coordinates::Screen;
using coordinates::Units;

TEST(GrabUnits, aRegionLiesWhereTheUserFramedItOnAnyScreenAtAnyScale) {
    const Screen plain{0, 0, 900, 1};
    const Screen dense{0, 0, 900, 2};
    const Screen fraction{0, 0, 720, 1.5};                 // 1920 by 1080 pixels
    const Screen second{1440, 300, 1024, 1};               // right of and below the first
    const Screen denseSecond{3840, 0, 1080, 2};            // its origin stays in pixels
    const Screen oddFraction{1920, 56, 683, 1024 / 683.0}; // 1024 pixels do not divide by 1.5
    const struct {
        std::string name;
        Screen screen;
        double unitsPerPixel;
        Points region;
        Units expected;
    } cases[] = {
        {"one display", plain, 1, {560, 330, 320, 240}, {560, 330, 320, 240}},
        {"from below", plain, 1, {10, 0, 100, 50}, {10, 850, 100, 50}},
        {"double density, halved", dense, 0.5, {560, 330, 320, 240}, {560, 330, 320, 240}},
        {"double density, not halved", dense, 1, {560, 330, 320, 240}, {1120, 660, 640, 480}},
        {"one and a half", fraction, 1, {480, 240, 320, 240}, {720, 360, 480, 360}},
        {"halves go up at every edge", fraction, 1, {1, 0, 2, 1}, {2, 1079, 3, 1}},
        {"second display", second, 1, {100, 200, 320, 240}, {1540, 884, 320, 240}},
        {"dense second display", denseSecond, 1, {100, 200, 320, 240}, {4040, 1280, 640, 480}},
        {"left of and above the desktop", plain, 1, {-30, 800, 100, 200}, {-30, -100, 100, 200}},
        {"bottom edge of an odd height", oddFraction, 1, {0, 0, 1, 1}, {1920, 1079, 1, 1}},
        {"nothing becomes one unit", plain, 1, {5, 5, 0, 0}, {5, 895, 1, 1}},
    };
    for (const auto &[name, screen, unitsPerPixel, region, expected] : cases) {
        const Units units =
            coordinates::fromPoints(region, screen, unitsPerPixel, 1 << 15, 1 << 15);
        EXPECT_EQ(units, expected) << name << ": " << units.x << ", " << units.y << " "
                                   << units.width << " by " << units.height;
    }
}

TEST(GrabUnits, aRegionOnTheEdgeEndsWithTheScreenWhereItsSizeInPointsIsRounded) {
    // 700 by 901 pixels are 466.7 by 600.7 points, which the toolkit makes 467 by 601.
    const Screen fraction{0, 0, 601, 1.5};
    const Units whole = coordinates::fromPoints({0, 0, 467, 601}, fraction, 1, 700, 901);
    EXPECT_EQ(whole, (Units{0, 0, 700, 901}));
    // A desktop that became smaller changes no frame's size.
    const Units beyond = coordinates::fromPoints({0, 0, 467, 601}, fraction, 1, 600, 700);
    EXPECT_EQ(beyond, (Units{0, 0, 701, 902}));
}

TEST(GrabUnits, neighbouringRegionsNeitherOverlapNorLeaveAGap) {
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const Screen screen{7, 11, 720, ratio};
        for (int x = -5; x < 60; ++x) {
            const Points left{static_cast<double>(x), 100, 13, 13};
            const Points right{x + 13.0, 87, 29, 13};
            const Units a = coordinates::fromPoints(left, screen, 1, 1 << 15, 1 << 15);
            const Units b = coordinates::fromPoints(right, screen, 1, 1 << 15, 1 << 15);
            ASSERT_EQ(a.x + a.width, b.x) << ratio;
            ASSERT_EQ(a.y + a.height, b.y) << ratio;
        }
    }
}

TEST(GrabUnits, comeFromTheRegionThatIsFoundForThem) {
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        const Screen screen{7, 11, 720, ratio};
        for (int x = 7; x < 60; ++x) {
            const Points asked{static_cast<double>(x), 200, 40, 30};
            const Units units = coordinates::fromPoints(asked, screen, 1, 1 << 15, 1 << 15);
            ASSERT_EQ(coordinates::toPoints(units, screen, 1), asked) << ratio;
        }
    }
}

TEST(PanelPlace, isBelowTheRegionElseAboveElseInsideAndAlwaysOnTheScreen) {
    const panel_place::Box screen{1000, 50, 800, 600};
    const auto place = [&](panel_place::Box region) {
        return panel_place::choose(region, screen, 500, 40);
    };
    using panel_place::gap;
    EXPECT_EQ(place({1100, 100, 300, 200}), (panel_place::Point{1100, 300 + gap}));
    EXPECT_EQ(place({1700, 400, 100, 230}), (panel_place::Point{1300, 400 - gap - 40}));
    EXPECT_EQ(place({1000, 50, 800, 600}), (panel_place::Point{1000, 650 - gap - 40}));
}
