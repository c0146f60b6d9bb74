// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_drag.h"

#include <gtest/gtest.h>

#include <random>

using namespace region_drag;
using region_geometry::boundingRegion;
using region_geometry::squareAt;

namespace {

constexpr Screen screen{1440, 900, 1};
constexpr Region start{560, 330, 320, 240};

Region draggedTo(const Region &region, Point from, Point to, const Screen &on = screen) {
    const Squares squares = squaresOf(region);
    Grip grip = gripAt(squares, squareAt(squares, from), from);
    return boundingRegion(dragged(grip, to, on));
}

} // namespace

TEST(RegionDrag, aCornerKeepsItsDistanceToThePointer) {
    EXPECT_EQ(draggedTo(start, {557, 333}, {557, 333}), start);
    EXPECT_EQ(draggedTo(start, {557, 333}, {567, 313}), (Region{570, 310, 310, 260}));
    EXPECT_EQ(draggedTo(start, {884, 566}, {1084, 666}), (Region{560, 330, 520, 340}));
}

TEST(RegionDrag, theInsideMovesTheRegionAsFarAsTheScreenAllows) {
    EXPECT_EQ(draggedTo(start, {600, 400}, {610, 380}), (Region{570, 310, 320, 240}));
    EXPECT_EQ(draggedTo(start, {600, 400}, {0, 1}), (Region{0, 0, 320, 240}));
    EXPECT_EQ(draggedTo(start, {600, 400}, {5000, 5000}), (Region{1120, 660, 320, 240}));
}

TEST(RegionDrag, theOutsideDrawsANewRegionOnceItIsADrag) {
    EXPECT_EQ(draggedTo(start, {100, 100}, {103, 98}), start);
    EXPECT_EQ(draggedTo(start, {100, 100}, {300, 250}), (Region{100, 100, 200, 150}));
    EXPECT_EQ(draggedTo(start, {100, 800}, {40, 700}), (Region{40, 700, 60, 100}));
    // From one corner of the screen to the other.
    EXPECT_EQ(draggedTo(start, {0, 1}, {1439, 900}), (Region{0, 0, 1440, 900}));
}

TEST(RegionDrag, thePointerReachesEveryEdgeWhereverItTookTheCorner) {
    // The pointer's places on screens of this scale: the upper left corners of their pixels.
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        const Screen on{std::round(1366 / ratio), std::round(768 / ratio), 1 / ratio};
        const double right = 1365 / ratio;
        const double lowest = on.height - 767 / ratio;
        const Region region{200, 150, 100, 80};
        for (int dx = -5; dx <= 5; ++dx) {
            for (int dy = -5; dy <= 5; ++dy) {
                const Region low = draggedTo(region, {200.0 + dx, 150.0 + dy}, {0, lowest}, on);
                ASSERT_EQ(low, (Region{0, 0, 300, 230})) << ratio << ": " << dx << ", " << dy;
                const Region high =
                    draggedTo(region, {300.0 + dx, 230.0 + dy}, {right, on.height}, on);
                ASSERT_EQ(high, (Region{200, 150, static_cast<int>(on.width) - 200,
                                        static_cast<int>(on.height) - 150}))
                    << ratio << ": " << dx << ", " << dy;
            }
        }
    }
}

TEST(RegionDrag, keepsItsRatioWhereThatIsAskedForAndStaysOnTheScreen) {
    const auto drag = [](Point from, Point to) {
        const Squares squares = squaresOf(start);
        Grip grip = gripAt(squares, squareAt(squares, from), from);
        return boundingRegion(dragged(grip, to, screen, true));
    };
    EXPECT_EQ(drag({880, 570}, {1200, 580}), (Region{560, 330, 640, 480}));
    EXPECT_EQ(drag({560, 330}, {700, 330}), start) << "as far out as one side is";
    EXPECT_EQ(drag({880, 570}, {1440, 900}), (Region{560, 330, 760, 570})) << "no further";
    EXPECT_EQ(drag({100, 100}, {300, 180}), (Region{100, 100, 200, 200})) << "a new one: square";
}

TEST(RegionDrag, noDragLeavesTheScreenAndTheLastRegionFitsASmallerOne) {
    std::mt19937 random(20261125);
    std::uniform_real_distribution<double> anyX(-300, 1700);
    std::uniform_real_distribution<double> anyY(-300, 1200);
    Region region = start;
    for (int step = 0; step < 20'000; ++step) {
        region = draggedTo(region, {anyX(random), anyY(random)}, {anyX(random), anyY(random)});
        ASSERT_TRUE(region.x >= 0 && region.y >= 0 && region.width >= 0 && region.height >= 0);
        ASSERT_TRUE(region.x + region.width <= 1440 && region.y + region.height <= 900);
    }
    EXPECT_EQ(within({1300, 700, 320, 240}, {1440, 900, 1}), (Region{1120, 660, 320, 240}));
    EXPECT_EQ(within({-50, 0, 2000, 100}, {800, 600, 1}), (Region{0, 0, 800, 100}));
}
