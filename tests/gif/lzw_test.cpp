// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/lzw_coder.h"
#include "tests/gif/slow_lzw.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace gif;

namespace {

using Indices = std::vector<std::uint8_t>;

std::vector<IndexPair> pairs(std::span<const std::uint8_t> first,
                             std::span<const std::uint8_t> second) {
    std::vector<IndexPair> both;
    for (std::size_t i = 0; i < first.size(); ++i)
        both.push_back({first[i], second[i]});
    return both;
}

std::vector<std::uint8_t> codedExactly(LzwCoder &coder, std::span<const std::uint8_t> indices,
                                       int codeSize, int lookAhead = 0) {
    Indices chosen;
    const auto both = pairs(indices, indices);
    auto data = coder.code(PairChoices(both), codeSize, {.lookAhead = lookAhead}, chosen);
    EXPECT_TRUE(std::ranges::equal(chosen, indices));
    return data;
}

/// Noise, runs, a pattern and noise of few indices, by turns.
Indices stream(int codeSize, std::size_t length, std::uint32_t seed) {
    std::mt19937 engine(seed);
    const auto random = [&] { return unsigned(engine()); };
    const unsigned mask = (1u << codeSize) - 1;
    Indices out;
    while (out.size() < length) {
        const unsigned kind = random() % 4, a = random() & mask, b = random() & mask;
        for (unsigned i = 0, n = random() % 2000; i < n; ++i)
            out.push_back(std::uint8_t(kind == 0   ? random() & mask
                                       : kind == 1 ? a
                                       : kind == 2 ? (i % 7 < 3 ? a : b)
                                                   : random() & 3));
    }
    out.resize(length);
    return out;
}

} // namespace

TEST(Lzw, comesBackForEveryCodeSizeAndEndsAtEveryEdge) {
    constexpr std::size_t mostEdges = 10;
    LzwCoder coder;
    for (int codeSize = 2; codeSize <= 8; ++codeSize) {
        for (const int lookAhead : {0, 3}) {
            SCOPED_TRACE(testing::Message() << "code size " << codeSize << ", look " << lookAhead);
            const Indices all = stream(codeSize, 60000, unsigned(codeSize));
            const auto whole =
                decodeSlowly(codedExactly(coder, all, codeSize, lookAhead), codeSize);
            ASSERT_TRUE(whole);
            EXPECT_EQ(whole->indices, all);
            ASSERT_GE(whole->filled, 1u);
            ASSERT_EQ(coder.counts().full, int(whole->filled));
            ASSERT_GE(whole->clears, 1);
            ASSERT_GE(whole->widened.size(), std::size_t(11 - codeSize));

            // The end right before and after each change of width, at full and after the clear
            // code.
            std::size_t atFull = 0, afterClear = 0, before = 0, after = 0;
            std::vector<std::size_t> edges(whole->widened);
            edges.resize(std::min(edges.size(), mostEdges));
            edges.push_back(4096 - (1u << codeSize));
            for (const std::size_t edge : edges) {
                for (std::size_t codes = edge > 3 ? edge - 3 : 1;
                     codes <= std::min(edge + 3, whole->ends.size()); ++codes) {
                    const std::span part(all.data(), whole->ends[codes - 1]);
                    const auto got =
                        decodeSlowly(codedExactly(coder, part, codeSize, lookAhead), codeSize);
                    ASSERT_TRUE(got);
                    ASSERT_TRUE(std::ranges::equal(got->indices, part));
                    const auto reached = got->ends.size();
                    after += std::ranges::find(got->widened, reached) != got->widened.end();
                    before +=
                        std::ranges::find(whole->widened, reached + 1) != whole->widened.end();
                    atFull += std::size_t(got->fullAtEnd);
                    afterClear += got->clears > 0 && got->codesAtEnd == 1;
                }
            }
            EXPECT_GE(before, edges.size() - 1);
            EXPECT_GE(after, edges.size() - 1);
            EXPECT_GE(atFull, 1u);
            EXPECT_GE(afterClear, 1u);
        }
    }
}

TEST(Lzw, takesTheIndexThatMakesTheFileShorterAndNoOther) {
    LzwCoder coder;
    std::mt19937 random(5);
    Indices first(60000), second(60000);
    for (std::size_t i = 0; i < first.size(); ++i) {
        first[i] = std::uint8_t(random() % 40);
        second[i] = random() % 4 == 0 ? first[i] : 63;
    }
    Indices chosen;
    const auto always = codedExactly(coder, first, 6);
    const auto data = coder.code(PairChoices(pairs(second, first)), 6, {.lookAhead = 2}, chosen);
    const auto got = decodeSlowly(data, 6);
    ASSERT_TRUE(got);
    EXPECT_EQ(got->indices, chosen);
    bool firstTaken = false, secondTaken = false;
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        ASSERT_TRUE(chosen[i] == first[i] || chosen[i] == second[i]) << i;
        firstTaken |= chosen[i] != second[i];
        secondTaken |= chosen[i] != first[i];
    }
    EXPECT_TRUE(firstTaken && secondTaken);
    EXPECT_LT(data.size() * 2, always.size());
}

TEST(Lzw, stopsWhenAsked) {
    LzwCoder coder;
    std::stop_source stop;
    stop.request_stop();
    Indices chosen;
    const Indices indices(100, 1);
    EXPECT_TRUE(
        coder.code(PairChoices(pairs(indices, indices)), 2, {}, chosen, stop.get_token()).empty());
}
