// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_geometry.h"

#include <gtest/gtest.h>

#include <random>

using namespace region_geometry;

namespace {

Squares startOn(double width, double height) { return initialSquares(320, 240, width, height); }

std::size_t at(int index) { return static_cast<std::size_t>(index); }

} // namespace

TEST(RegionGeometry, theRegionStartsInTheMiddleOfTheScreen) {
    const Squares squares = startOn(1440, 900);
    EXPECT_EQ(squares, (Squares{{{553, 323}, {873, 323}, {713, 443}, {553, 563}, {873, 563}}}));
    EXPECT_EQ(boundingRegion(squares), (Region{560, 330, 320, 240}));

    // Odd sizes: every half is cut off, towards zero where the region is larger than the screen.
    const Squares odd = initialSquares(321.9, 241.9, 1440.5, 900.5);
    EXPECT_EQ(boundingRegion(odd), (Region{559, 329, 321, 241}));
    EXPECT_EQ(odd[at(middle)], (Point{559 + 160 - 7, 329 + 120 - 7}));
    EXPECT_EQ(boundingRegion(startOn(319, 239)), (Region{0, 0, 320, 240}));
    EXPECT_EQ(boundingRegion(startOn(317, 237)), (Region{-1, -1, 320, 240}));
}

TEST(RegionGeometry, aPressHitsASquareWithItsEdgesAndTheLowestIndexWins) {
    const Squares apart = startOn(1440, 900);
    Squares close = apart;
    drag(close, upperRight, {close[at(lowerLeft)].x + 8, close[at(lowerLeft)].y + 8});
    const struct {
        const Squares &squares;
        Point pointer;
        std::optional<int> hit;
    } cases[] = {
        {apart, {553, 323}, lowerLeft},  {apart, {567, 337}, lowerLeft},
        {apart, {567.1, 330}, {}},       {apart, {560, 322.9}, {}},
        {apart, {887, 337}, lowerRight}, {apart, {720, 450}, middle},
        {apart, {553, 577}, upperLeft},  {apart, {887, 577}, upperRight},
        {apart, {720, 330}, {}},         {close, {560, 330}, lowerLeft},
        {close, {566, 339}, middle},     {close, {563, 343}, upperLeft},
    };
    for (const auto &[squares, pointer, hit] : cases)
        EXPECT_EQ(squareAt(squares, pointer), hit) << pointer.x << ", " << pointer.y;
}

TEST(RegionGeometry, aDraggedCornerTakesItsNeighboursAlongAndKeepsFractions) {
    // Squares at (553, 323) to (873, 563). The half of an odd distance is cut off on the way from
    // the left and from below, so it depends on the corner in hand.
    const struct {
        int corner;
        Point pointer;
        Squares expected;
        Region region;
    } cases[] = {
        {lowerLeft,
         {100.7, 50.2},
         {{{100.7, 50.2}, {873, 50.2}, {486, 306}, {100.7, 563}, {873, 563}}},
         {107, 57, 773, 513}},
        {lowerRight,
         {1000.9, 101.5},
         {{{553, 101.5}, {1000.9, 101.5}, {776, 332}, {553, 563}, {1000.9, 563}}},
         {560, 108, 447, 462}},
        {upperLeft,
         {-20.5, 700},
         {{{-20.5, 323}, {873, 323}, {426, 511}, {-20.5, 700}, {873, 700}}},
         {-13, 330, 893, 377}},
        {upperRight,
         {554, 324},
         {{{553, 323}, {554, 323}, {553, 323}, {553, 324}, {554, 324}}},
         {560, 330, 1, 1}},
        // Past the opposite corner: the bounding box of all squares.
        {lowerLeft,
         {1000, 700},
         {{{1000, 700}, {873, 700}, {937, 632}, {1000, 563}, {873, 563}}},
         {880, 570, 127, 137}},
    };
    for (const auto &[corner, pointer, expected, region] : cases) {
        Squares squares = startOn(1440, 900);
        drag(squares, corner, pointer);
        EXPECT_EQ(squares, expected) << "corner " << corner;
        EXPECT_EQ(boundingRegion(squares), region) << "corner " << corner;
    }
    Squares untouched = startOn(1440, 900);
    for (const int notACorner : {middle, -1, 5})
        drag(untouched, notACorner, {1, 1});
    EXPECT_EQ(untouched, startOn(1440, 900));
}

TEST(RegionGeometry, aCornerIsNamedByWhereItLiesNow) {
    Squares squares = startOn(1440, 900);
    EXPECT_TRUE(placeOf(squares, lowerLeft).left && placeOf(squares, lowerLeft).lower);
    drag(squares, lowerLeft, {1000, 400}); // Past its right neighbour, still below the upper edge.
    EXPECT_TRUE(!placeOf(squares, lowerLeft).left && placeOf(squares, lowerLeft).lower);
    EXPECT_TRUE(placeOf(squares, upperRight).left && !placeOf(squares, upperRight).lower);
    // On top of each other: as laid out.
    drag(squares, lowerLeft, squares[at(upperRight)]);
    EXPECT_TRUE(placeOf(squares, lowerLeft).left && placeOf(squares, lowerLeft).lower);
    EXPECT_TRUE(!placeOf(squares, upperRight).left && !placeOf(squares, upperRight).lower);
}
