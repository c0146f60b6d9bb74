// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "region/region_geometry.h"

/// The rules of the pointer on the region's overlay: a corner keeps its distance to the pointer,
/// the whole region moves when it is dragged by its inside, a new one is drawn outside, and none of
/// it leaves the screen. Coordinates as in region_geometry.h. Not for the press that accepts.
namespace region_drag {

using region_geometry::Point;
using region_geometry::Region;
using region_geometry::Squares;

/// The screen of the overlay.
struct Screen {
    double width = 0;  // points
    double height = 0; // points
    double pixel = 1;  // the side of a pixel, in points
};

/// What the button holds that was pressed.
enum class Held { Corner, Whole, NewRegion };

struct Grip {
    Held held = Held::NewRegion;
    /// Index of the square that is dragged: for a new region the one that the pointer draws.
    int corner = region_geometry::lowerRight;
    Point pressed;
    Squares before{};
    /// A press outside draws a region only once it has become a drag.
    bool drawing = false;
};

/// A press is no drag until the pointer is this far away, in points.
inline constexpr double dragDistance = 4.0;

/// The point that a square marks.
inline Point markOf(const Point &square) {
    return {square.x + region_geometry::squareInset, square.y + region_geometry::squareInset};
}

/// A place of the pointer counts in pixels, the region in whole points.
inline Point whole(Point point) { return {std::round(point.x), std::round(point.y)}; }

/// The squares of the rectangle between two opposite corners, `from` and `to` (marked points).
inline Squares squaresBetween(Point from, Point to) {
    constexpr double inset = region_geometry::squareInset;
    const double left = std::min(from.x, to.x) - inset;
    const double right = std::max(from.x, to.x) - inset;
    const double bottom = std::min(from.y, to.y) - inset;
    const double top = std::max(from.y, to.y) - inset;
    Squares squares{{{left, bottom}, {right, bottom}, {}, {left, top}, {right, top}}};
    // Puts the middle where a drag would.
    region_geometry::drag(squares, region_geometry::lowerLeft, {left, bottom});
    return squares;
}

/// `region` in the screen: made smaller only where it is larger than the screen.
inline Region within(const Region &region, const Screen &screen) {
    const std::int32_t width = std::min(region.width, region_geometry::truncated(screen.width));
    const std::int32_t height = std::min(region.height, region_geometry::truncated(screen.height));
    const auto kept = [](std::int32_t from, std::int32_t length, double whole) {
        return std::clamp(from, 0, region_geometry::truncated(whole) - length);
    };
    return {kept(region.x, width, screen.width), kept(region.y, height, screen.height), width,
            height};
}

inline Squares squaresOf(const Region &region) {
    const auto at = [](std::int32_t x, std::int32_t y) {
        return Point{static_cast<double>(x), static_cast<double>(y)};
    };
    return squaresBetween(at(region.x, region.y),
                          at(region.x + region.width, region.y + region.height));
}

/// `point` on the screen; one in the outermost pixels is on the edge. The pointer is at the upper
/// left of its pixel, so at the right and below it would always stay a pixel short of it. (A
/// screen's size in points is rounded: hence not exactly one pixel.)
inline Point toEdges(Point point, const Screen &screen) {
    const double nearSide = 0.5 * screen.pixel;
    const double farSide = 1.75 * screen.pixel + 1e-6;
    const auto snapped = [](double value, double low, double high, double length) {
        if (value <= low)
            return 0.0;
        return value >= length - high ? length : value;
    };
    return {snapped(point.x, nearSide, farSide, screen.width),
            snapped(point.y, farSide, nearSide, screen.height)};
}

inline Point clamped(Point point, const Screen &screen) {
    return {std::clamp(point.x, 0.0, screen.width), std::clamp(point.y, 0.0, screen.height)};
}

/// What a press takes hold of, `hit` being the corner square under it, if any.
inline Grip gripAt(const Squares &squares, std::optional<int> hit, Point pointer) {
    if (hit)
        return {.held = Held::Corner, .corner = *hit, .pressed = pointer, .before = squares};
    const Region region = region_geometry::boundingRegion(squares);
    const bool inside = pointer.x >= region.x && pointer.x <= region.x + region.width &&
                        pointer.y >= region.y && pointer.y <= region.y + region.height;
    return {.held = inside ? Held::Whole : Held::NewRegion, .pressed = pointer, .before = squares};
}

/// Where the corner's mark goes when the pointer has gone from `pressed` to `pointer`.
inline Point markOfCorner(const Grip &grip, Point pointer, const Screen &screen) {
    const Point start = markOf(grip.before[static_cast<std::size_t>(grip.corner)]);
    const Point kept = clamped(
        {start.x + pointer.x - grip.pressed.x, start.y + pointer.y - grip.pressed.y}, screen);
    const Point edge = toEdges(pointer, screen);
    // The pointer's edge is the corner's too, or the distance would keep it from some of them. Not
    // before the pointer moves that way: a press moves nothing.
    const bool onEdgeX = edge.x == 0.0 || edge.x == screen.width;
    const bool onEdgeY = edge.y == 0.0 || edge.y == screen.height;
    return whole({onEdgeX && pointer.x != grip.pressed.x ? edge.x : kept.x,
                  onEdgeY && pointer.y != grip.pressed.y ? edge.y : kept.y});
}

/// `mark` brought to where the sides from `across`, the opposite corner, have the ratio of `width`
/// to `height` again, as far out as the mark is in one of them and the screen allows.
inline Point inRatio(Point mark, Point across, double width, double height, const Screen &screen) {
    const double dx = mark.x - across.x;
    const double dy = mark.y - across.y;
    if (width <= 0 || height <= 0)
        return mark;
    const double roomX = dx < 0 ? across.x : screen.width - across.x;
    const double roomY = dy < 0 ? across.y : screen.height - across.y;
    const double wanted = std::max(std::abs(dx) / width, std::abs(dy) / height);
    const double factor = std::min({wanted, roomX / width, roomY / height});
    return whole({across.x + std::copysign(factor * width, dx),
                  across.y + std::copysign(factor * height, dy)});
}

/// The region moved by the pointer's way, as far as the screen allows.
inline Squares movedWhole(const Grip &grip, Point pointer, const Screen &screen) {
    const Region region = region_geometry::boundingRegion(grip.before);
    const auto way = [](double wanted, double from, double length, double whole) {
        return std::clamp(std::round(wanted), std::min(-from, 0.0),
                          std::max(whole - from - length, 0.0));
    };
    const double dx = way(pointer.x - grip.pressed.x, region.x, region.width, screen.width);
    const double dy = way(pointer.y - grip.pressed.y, region.y, region.height, screen.height);
    Squares squares = grip.before;
    for (Point &square : squares)
        square = {square.x + dx, square.y + dy};
    return squares;
}

/// The squares with the pointer at `pointer`; `grip` keeps what the drag has become. With
/// `keepsRatio` a corner keeps the ratio of the sides that it began with, and a new region is a
/// square.
inline Squares dragged(Grip &grip, Point pointer, const Screen &screen, bool keepsRatio = false) {
    if (grip.held == Held::Whole)
        return movedWhole(grip, pointer, screen);
    if (grip.held == Held::Corner) {
        Squares squares = grip.before;
        Point mark = markOfCorner(grip, pointer, screen);
        if (keepsRatio) {
            const Region before = region_geometry::boundingRegion(grip.before);
            const int across = region_geometry::oppositeOf(grip.corner);
            mark = inRatio(mark, markOf(grip.before[static_cast<std::size_t>(across)]),
                           before.width, before.height, screen);
        }
        region_geometry::drag(
            squares, grip.corner,
            {mark.x - region_geometry::squareInset, mark.y - region_geometry::squareInset});
        return squares;
    }
    const double dx = pointer.x - grip.pressed.x;
    const double dy = pointer.y - grip.pressed.y;
    grip.drawing = grip.drawing || std::max(std::abs(dx), std::abs(dy)) >= dragDistance;
    if (!grip.drawing)
        return grip.before;
    grip.corner = dy < 0 ? (dx < 0 ? region_geometry::lowerLeft : region_geometry::lowerRight)
                         : (dx < 0 ? region_geometry::upperLeft : region_geometry::upperRight);
    const Point from = whole(clamped(toEdges(grip.pressed, screen), screen));
    const Point to = whole(clamped(toEdges(pointer, screen), screen));
    return squaresBetween(from, keepsRatio ? inRatio(to, from, 1, 1, screen) : to);
}

} // namespace region_drag
