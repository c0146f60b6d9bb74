// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/gif/clip.h"

#include <algorithm>
#include <functional>
#include <random>

/// A clip of one of several kinds, made of the numbers that `draw` gives: noise, flat areas, few
/// colours, about as many as a table holds, a gradient, single pixels and squares that change.
inline Clip madeClip(const std::function<unsigned()> &draw) {
    const int width = 1 + int(draw() % 70), height = 1 + int(draw() % 70);
    Clip clip(width, height);
    constexpr unsigned counts[] = {1, 2, 3, 16, 17, 127, 255, 256, 257, 4000, 1u << 24};
    const unsigned count = counts[draw() % std::size(counts)], seed = draw();
    const auto colour = [&](unsigned i) {
        return ((i % count + 1) * 0x9E3779B1u + seed) >> 3 & 0xFFFFFF;
    };
    Clip::Pixels pixels(std::size_t(width) * std::size_t(height));
    for (unsigned frame = 0, frames = 1 + draw() % 6; frame < frames; ++frame) {
        const unsigned kind = frame == 0 ? draw() % 3 : draw() % 6;
        const unsigned step = draw();
        const std::size_t w = std::size_t(width);
        const auto left = draw() % unsigned(width), top = draw() % unsigned(height);
        const auto right = left + 1 + draw() % (unsigned(width) - left);
        const auto bottom = top + 1 + draw() % (unsigned(height) - top);
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const bool inside = i % w >= left && i % w < right && i / w >= top && i / w < bottom;
            if (kind == 0) // each colour in turn
                pixels[i] = colour(unsigned(i) + step);
            else if (kind == 1) // flat areas
                pixels[i] = colour(unsigned(i % w / 9 + i / w / 9 * 8) + step);
            else if (kind == 2) // a gradient
                pixels[i] = unsigned(i % w * 3) << 16 | unsigned(i / w * 3) << 8 | (step & 63);
            else if (kind == 3 && inside)
                pixels[i] = colour(unsigned(i) * (step & 3) + step);
            else if (kind == 4 && inside) // hardly seen
                pixels[i] ^= 0x010001;
        }
        if (kind == 5)
            pixels[step % pixels.size()] ^= 0x102030;
        clip.add(pixels, 2 + int(draw() % 20));
    }
    return clip;
}

/// Pictures that take the encoder a while.
inline Clip noise(int width, int height, int frames) {
    std::mt19937 random(3);
    Clip clip(width, height);
    for (int i = 0; i < frames; ++i) {
        Clip::Pixels pixels(std::size_t(width) * std::size_t(height));
        for (auto &pixel : pixels)
            pixel = std::uint32_t(random()) & 0xFFFFFF;
        clip.add(std::move(pixels));
    }
    return clip;
}
