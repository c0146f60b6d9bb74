// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/tile_comparison.h"

#include <gtest/gtest.h>

#include <vector>

TEST(TileComparison, findsEveryPixelAndNothingOutsideOfWhatItWasAskedFor) {
    const QSize size(150, 70); // three tiles across, the last one narrow, and two down
    std::vector<std::uint32_t> a(150 * 70, 1), b = a;
    const auto where = [&](const QRegion &asked) {
        return differingTiles({a.data(), 150}, {b.data(), 150}, size, asked);
    };
    const QRect all(QPoint(), size);
    EXPECT_TRUE(where(all).isEmpty());
    b[69 * 150 + 149] = 2; // the last pixel of all
    EXPECT_EQ(where(all), QRegion(128, 64, 22, 6));
    EXPECT_TRUE(where(QRect(0, 0, 149, 70)).isEmpty()) << "beside it";
    EXPECT_EQ(where(QRect(140, 60, 500, 500)), QRegion(140, 64, 10, 6)) << "cut to what was asked";
    b[0] = 2;
    b[64] = 2;
    EXPECT_EQ(where(all), QRegion(0, 0, 128, 64) + QRegion(128, 64, 22, 6));
    EXPECT_EQ(where(QRegion(0, 0, 10, 10) + QRegion(64, 10, 10, 10)), QRegion(0, 0, 10, 10));
}
