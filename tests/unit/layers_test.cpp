// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/layers.h"

#include <gtest/gtest.h>

using x11::changedBetween;
using x11::Layer;
using x11::LayerStack;

namespace {

const QRect desktop(0, 0, 100, 100);

Layer layer(std::uint32_t window, const QRect &place, bool blended = false) {
    return {.window = window,
            .region = place,
            .origin = place.topLeft(),
            .blended = blended,
            .generation = 1};
}

LayerStack stack(std::vector<Layer> layers) { return {std::move(layers), desktop}; }

} // namespace

TEST(Layers, changeWhereTheyComeGoMoveOrShowAnotherPicture) {
    const Layer front = layer(1, {0, 0, 20, 20}), back = layer(2, {10, 10, 30, 30});
    const auto both = stack({front, back});
    EXPECT_TRUE(changedBetween(both, stack({front, back})).isEmpty());
    EXPECT_EQ(changedBetween(both, stack({front})), both.visible(1));
    EXPECT_EQ(changedBetween(stack({back}), both), QRegion(front.region));

    EXPECT_EQ(changedBetween(both, stack({layer(1, {5, 0, 20, 20}), back})),
              QRegion(0, 0, 20, 20) + QRegion(5, 0, 20, 20))
        << "what it left, and all of what it shows elsewhere";
    Layer renewed = back;
    renewed.generation = 2;
    EXPECT_EQ(changedBetween(both, stack({front, renewed})), both.visible(1));
    EXPECT_EQ(changedBetween(both, LayerStack({front, back}, {0, 0, 50, 50})),
              QRegion(0, 0, 50, 50))
        << "another desktop";
}

// Rectangles that lie so were once lost in the sum of changes.
TEST(Layers, changeWhereverTheyCoverEachOtherInOneRow) {
    const QRect wide(0, 0, 640, 400);
    const Layer top = layer(1, {458, -43, 96, 221}), right = layer(2, {507, 115, 228, 182});
    const Layer corner = layer(3, {599, 277, 176, 170}), back = layer(4, {448, 173, 194, 249});
    const Layer ground = layer(5, wide);
    const LayerStack before({top, right, back, ground}, wide),
        after({right, corner, back, ground}, wide);
    const auto changed = changedBetween(before, after);
    const auto expected = [](int x, int y) {
        return QRect(458, 0, 96, 178).contains(x, y) || QRect(599, 297, 41, 103).contains(x, y);
    };
    int wrong = 0;
    for (int y = 0; y < wide.height(); ++y)
        for (int x = 0; x < wide.width(); ++x)
            wrong += changed.contains(QPoint(x, y)) != expected(x, y);
    EXPECT_EQ(wrong, 0);
}

TEST(Layers, changeWhereTheyExchangePlaces) {
    const Layer a = layer(1, {0, 0, 20, 20}), b = layer(2, {10, 10, 20, 20});
    const Layer apart = layer(3, {50, 50, 10, 10});
    EXPECT_EQ(changedBetween(stack({a, b, apart}), stack({apart, b, a})), QRegion(10, 10, 10, 10));

    const Layer glass = layer(1, {0, 0, 20, 20}, true), pane = layer(2, {10, 10, 20, 20}, true);
    EXPECT_EQ(changedBetween(stack({glass, pane, apart}), stack({apart, pane, glass})),
              QRegion(10, 10, 10, 10))
        << "both stay in sight, and yet it looks different";
    EXPECT_TRUE(changedBetween(stack({glass, pane}), stack({glass, apart, pane}))
                    .xored(apart.region)
                    .isEmpty())
        << "one that comes between exchanges nothing";
}
