// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/scaler.h"
#include "tests/gif/clip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using gif::Rect;

namespace {

Clip::Pixels scaledWhole(const Clip::Pixels &from, int fromWidth, int fromHeight, int width,
                         int height) {
    Clip::Pixels to(std::size_t(width) * std::size_t(height));
    gif::Scaler(fromWidth, fromHeight, width, height)
        .scale(from.data(), fromWidth, {0, 0, width, height}, to.data());
    return to;
}

} // namespace

TEST(Scaler, leavesFlatAreasAndTheSameSizeAsTheyAre) {
    std::mt19937 random(2);
    for (const std::uint32_t colour : {0xFF000000u, 0xFFFFFFFFu, 0xFF010203u, 0xFF7F80FEu}) {
        const Clip::Pixels flat(37 * 23, colour);
        for (const int size : {1, 7, 18, 37, 90})
            for (const std::uint32_t pixel : scaledWhole(flat, 37, 23, size, size))
                ASSERT_EQ(pixel, colour);
    }
    Clip::Pixels noise(20 * 20);
    for (auto &pixel : noise)
        pixel = 0xFF000000u | std::uint32_t(random());
    EXPECT_EQ(scaledWhole(noise, 20, 20, 20, 20), noise);
}

TEST(Scaler, mixesLightNotNumbersAndAddsNoHalo) {
    // Every other line white: half the light is the value 188.
    Clip::Pixels lines(64 * 64), edge(64 * 64);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        lines[i] = i / 64 % 2 ? 0xFFFFFFFF : 0xFF000000;
        edge[i] = i % 64 < 31 ? 0xFF404040 : 0xFFC0C0C0;
    }
    const auto halved = scaledWhole(lines, 64, 64, 32, 32);
    EXPECT_NEAR(double(halved[16 * 32 + 16] & 255), 188, 1);
    for (const std::uint32_t pixel : scaledWhole(edge, 64, 64, 32, 32)) {
        EXPECT_GE(pixel & 255, 0x40u);
        EXPECT_LE(pixel & 255, 0xC0u);
    }
}

TEST(Scaler, changesOnlyWhereThePictureDid) {
    std::mt19937 random(4);
    const auto number = [&](int limit) { return int(unsigned(random()) % unsigned(limit)); };
    for (int turn = 0; turn < 60; ++turn) {
        const int width = 1 + number(150), height = 1 + number(150);
        const int toWidth = turn % 3 ? 1 + number(150) : std::max(width / 2, 1);
        const int toHeight = turn % 3 ? 1 + number(150) : std::max(height / 2, 1);
        Clip clip(width, height);
        Clip::Pixels pixels(std::size_t(width) * std::size_t(height));
        for (int frame = 0; frame < 4; ++frame) {
            const Rect rect{number(width), number(height), 1 + number(40), 1 + number(40)};
            for (int y = frame ? rect.y : 0; y < (frame ? rect.y + rect.height : height); ++y)
                for (int x = frame ? rect.x : 0; x < (frame ? rect.x + rect.width : width); ++x)
                    if (x < width && y < height)
                        pixels[std::size_t(y) * std::size_t(width) + std::size_t(x)] =
                            std::uint32_t(random());
            clip.add(pixels, 5 + frame, {rect});
        }
        gif::ScalingSource source(clip, width, height, toWidth, toHeight);
        gif::Frame frame;
        Clip::Pixels before;
        for (std::size_t i = 0; i < clip.size(); ++i) {
            ASSERT_TRUE(source.next(frame));
            EXPECT_EQ(frame.delay, clip.delay(i));
            const Clip::Pixels now(frame.pixels, frame.pixels + toWidth * toHeight);
            ASSERT_EQ(now, scaledWhole(clip.pixels(i), width, height, toWidth, toHeight));
            for (std::size_t p = 0; i > 0 && p < now.size(); ++p) {
                const int x = int(p) % toWidth, y = int(p) / toWidth;
                const Rect &told = frame.changed[0];
                const bool inside = x >= told.x && x < told.x + told.width && y >= told.y &&
                                    y < told.y + told.height;
                ASSERT_TRUE(inside || now[p] == before[p]);
            }
            before = now;
        }
        EXPECT_FALSE(source.next(frame));
    }
}
