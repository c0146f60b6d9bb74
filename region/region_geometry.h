// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/saturated.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

/// The rules of the region selection: where the five squares are, which one a press hits, what a
/// drag does, which region they stand for. Not for drawing, and not for the grab's own units (see
/// shell/coordinates.h).
///
/// Everything is in points from the lower left corner of the screen, y upwards. A square is given
/// by its lower left corner; it marks the point 7 points to the right of and above that corner.
/// Whole numbers are 32 bits wide, and fractions are cut off towards zero where the rules say so:
/// both are part of the behaviour.
namespace region_geometry {

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point &) const = default;
};

/// The selected rectangle; (x, y) is its lower left corner.
struct Region {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const Region &) const = default;
};

/// Lower left corners of the squares, by index: 0 lower left, 1 lower right, 2 middle, 3 upper
/// left, 4 upper right, as they were laid out. Drags may change places.
using Squares = std::array<Point, 5>;

inline constexpr int lowerLeft = 0;
inline constexpr int lowerRight = 1;
inline constexpr int middle = 2;
inline constexpr int upperLeft = 3;
inline constexpr int upperRight = 4;

/// Side of a square, and the distance from its lower left corner to the point that it marks.
inline constexpr int squareSide = 14;
inline constexpr int squareInset = 7;

/// The number without its fraction; beyond the range, the nearest end of it.
inline std::int32_t truncated(double value) { return saturated<std::int32_t>(value); }

/// Halfway from one whole number to another, the half of the distance cut off towards zero.
inline std::int32_t halfway(std::int32_t from, std::int32_t to) {
    // A pointer that is far off the screen must not overflow the difference.
    const std::int64_t distance = std::int64_t{to} - from;
    return static_cast<std::int32_t>(from + distance / 2);
}

/// The squares of a region of the given size in the middle of a screen.
inline Squares initialSquares(double regionWidth, double regionHeight, double screenWidth,
                              double screenHeight) {
    const std::int32_t w = truncated(regionWidth);
    const std::int32_t h = truncated(regionHeight);
    const std::int32_t left = truncated((screenWidth - w) * 0.5) - squareInset;
    const std::int32_t bottom = truncated((screenHeight - h) * 0.5) - squareInset;
    const auto at = [&](std::int32_t x, std::int32_t y) {
        return Point{static_cast<double>(left + x), static_cast<double>(bottom + y)};
    };
    return {at(0, 0), at(w, 0), at(w / 2, h / 2), at(0, h), at(w, h)};
}

/// The square that a press at `pointer` hits, edges included; the lowest index where squares
/// overlap.
inline std::optional<int> squareAt(const Squares &squares, Point pointer) {
    for (std::size_t index = 0; index < squares.size(); ++index) {
        const Point &corner = squares[index];
        if (corner.x <= pointer.x && pointer.x <= corner.x + squareSide && corner.y <= pointer.y &&
            pointer.y <= corner.y + squareSide)
            return static_cast<int>(index);
    }
    return std::nullopt;
}

inline bool isCorner(int index) {
    return index == lowerLeft || index == lowerRight || index == upperLeft || index == upperRight;
}

/// The corner diagonally across from a corner.
inline int oppositeOf(int corner) { return upperRight - corner; }

/// Drags a corner: its square's lower left corner goes to `pointer`, the two neighbours follow in
/// one coordinate each, the opposite corner stays, and the middle goes halfway between. Another
/// index changes nothing.
inline void drag(Squares &squares, int index, Point pointer) {
    if (!isCorner(index))
        return;
    const bool onLowerEdge = index == lowerLeft || index == lowerRight;
    const bool onLeftEdge = index == lowerLeft || index == upperLeft;
    const auto square = [&](int which) -> Point & {
        return squares[static_cast<std::size_t>(which)];
    };
    Point &sameRow = square(onLowerEdge ? (onLeftEdge ? lowerRight : lowerLeft)
                                        : (onLeftEdge ? upperRight : upperLeft));
    Point &sameColumn = square(onLowerEdge ? (onLeftEdge ? upperLeft : upperRight)
                                           : (onLeftEdge ? lowerLeft : lowerRight));
    square(index) = pointer;
    sameRow.y = pointer.y;
    sameColumn.x = pointer.x;

    // The half is cut off on the way from the lower left, whichever corner is dragged.
    const std::int32_t xPointer = truncated(pointer.x);
    const std::int32_t yPointer = truncated(pointer.y);
    const std::int32_t xOther = truncated(sameRow.x);
    const std::int32_t yOther = truncated(sameColumn.y);
    square(middle) = {
        static_cast<double>(onLeftEdge ? halfway(xPointer, xOther) : halfway(xOther, xPointer)),
        static_cast<double>(onLowerEdge ? halfway(yPointer, yOther) : halfway(yOther, yPointer))};
}

/// The region that the squares stand for: the bounding box of the points that they mark. Its width
/// and height are never negative, wherever the corners were dragged; they may be 0.
inline Region boundingRegion(const Squares &squares) {
    constexpr std::int32_t beyond = 1'000'000;
    std::int32_t minX = beyond;
    std::int32_t minY = beyond;
    std::int32_t maxX = -beyond;
    std::int32_t maxY = -beyond;
    for (const Point &corner : squares) {
        if (minX > corner.x)
            minX = truncated(corner.x);
        if (minY > corner.y)
            minY = truncated(corner.y);
        if (corner.x > maxX)
            maxX = truncated(corner.x);
        if (corner.y > maxY)
            maxY = truncated(corner.y);
    }
    return {minX + squareInset, minY + squareInset, maxX - minX, maxY - minY};
}

/// Where a corner is now, seen from the opposite one: its place as the user sees it, which is not
/// its index's once it has been dragged past another corner.
struct Place {
    bool left = false;
    bool lower = false;
};

inline Place placeOf(const Squares &squares, int corner) {
    const Point &own = squares[static_cast<std::size_t>(corner)];
    const Point &across = squares[static_cast<std::size_t>(oppositeOf(corner))];
    const bool laidOutLeft = corner == lowerLeft || corner == upperLeft;
    const bool laidOutLower = corner == lowerLeft || corner == lowerRight;
    return {.left = own.x == across.x ? laidOutLeft : own.x < across.x,
            .lower = own.y == across.y ? laidOutLower : own.y < across.y};
}

/// The corner that comes after `corner` on the way round the region, counter-clockwise as laid out;
/// `step` is 1 or -1.
inline int cornerAfter(int corner, int step) {
    constexpr std::array<int, 4> round{lowerLeft, lowerRight, upperRight, upperLeft};
    const auto here = std::find(round.begin(), round.end(), corner) - round.begin();
    return round[static_cast<std::size_t>((here + step + 4) % 4)];
}

} // namespace region_geometry
