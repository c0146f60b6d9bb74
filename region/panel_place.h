// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

/// Where the region's panel goes. In points, upper left origin.
namespace panel_place {

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

/// From the region to its panel: beyond the corners' squares, and what surrounds the region stays
/// visible.
inline constexpr int gap = 24;

/// The upper left corner of a panel of the given size: below the region, above it where there is no
/// room, inside at its lower edge where neither is. Always on the screen, if it fits there.
inline Point choose(const Box &region, const Box &screen, int width, int height) {
    const int lowest = screen.y + screen.height - height;
    const int below = region.y + region.height + gap;
    const int above = region.y - gap - height;
    const int inside = region.y + region.height - gap - height;
    const int y = below <= lowest ? below : above >= screen.y ? above : inside;
    const auto kept = [](int value, int low, int high) {
        return std::max(low, std::min(value, high));
    };
    return {kept(region.x, screen.x, screen.x + screen.width - width), kept(y, screen.y, lowest)};
}

} // namespace panel_place
