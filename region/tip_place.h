// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// Where the region's tip goes. In points, upper left origin; rectangles include their left and
/// upper edges only.
namespace tip_place {

struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point &) const = default;
};

struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// From the corner to the tip: beyond the corner's square, and the pointer's picture, which hangs
/// down and to the right of its hot spot, stays free.
inline constexpr int gap = 24;

inline bool covers(const Box &box, Point point) {
    return point.x >= box.x && point.x < box.x + box.width && point.y >= box.y &&
           point.y < box.y + box.height;
}

/// The upper left corner for a tip of the given size. Below and to the right of the corner where
/// there is room, else on one of its other sides, else in a corner of the screen; never over
/// `pointer` or closer to it than the gap, as long as the screen leaves a choice.
inline Point choose(Point corner, Point pointer, const Box &screen, int width, int height) {
    const int left = corner.x - gap - width;
    const int right = corner.x + gap;
    const int above = corner.y - gap - height;
    const int below = corner.y + gap;
    const int farRight = screen.x + screen.width - width;
    const int farBelow = screen.y + screen.height - height;
    const std::array<Point, 8> places{{{right, below},
                                       {left, below},
                                       {right, above},
                                       {left, above},
                                       {farRight, farBelow},
                                       {screen.x, farBelow},
                                       {farRight, screen.y},
                                       {screen.x, screen.y}}};
    for (const Point &place : places) {
        const bool inside = place.x >= screen.x && place.x <= farRight && place.y >= screen.y &&
                            place.y <= farBelow;
        const Box kept{place.x - gap / 2, place.y - gap / 2, width + gap, height + gap};
        if (inside && !covers(kept, pointer))
            return place;
    }
    return places.back();
}

} // namespace tip_place
