// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

#include <cstdint>
#include <vector>

/// A part of the counter's picture; the colour is 0xRRGGBB.
struct ColouredRect {
    QRect place;
    std::uint32_t colour;
};

/// The counter's picture in this size, to be drawn in this order: below, eight digits, four colours
/// each, the least significant first, and the sum of them, so that a covered or torn picture does
/// not pass for a number (tests/support/counter.py reads them); above, a bar that moves to the
/// right.
inline std::vector<ColouredRect> counterPicture(std::uint32_t number, QSize size) {
    constexpr int digits = 8, cells = digits + 1;
    constexpr int barSteps = 32; // from one side to the other
    constexpr std::uint32_t background = 0x202020, barColour = 0xf0f0f0;
    constexpr std::uint32_t colours[] = {0xe00000, 0x00c000, 0x0000e0, 0xe0e000};
    const int width = size.width(), height = size.height();
    const int barAt = (width - width / 8) * static_cast<int>(number % barSteps) / (barSteps - 1);
    std::vector<ColouredRect> picture{{{0, 0, width, height}, background},
                                      {{barAt, height / 16, width / 8, height * 3 / 8}, barColour}};
    std::uint32_t sum = 0;
    for (int cell = 0; cell < cells; ++cell) {
        const std::uint32_t digit = (cell < digits ? number >> (2 * cell) : sum) & 3U;
        sum += digit;
        const int left = width * cell / cells, right = width * (cell + 1) / cells;
        picture.push_back({{left, height / 2, right - left, height - height / 2}, colours[digit]});
    }
    return picture;
}
