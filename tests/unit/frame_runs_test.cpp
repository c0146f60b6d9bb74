// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/frame_runs.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

namespace {

std::set<std::uint64_t> framesOf(const FrameRuns &runs) {
    std::set<std::uint64_t> frames;
    for (const FrameRuns::Run &run : runs.runs())
        for (std::uint64_t frame = run.first; frame <= run.last; ++frame)
            frames.insert(frame);
    return frames;
}

TEST(FrameRuns, areWhatASetOfFramesWouldBe) {
    std::mt19937 random(7);
    const auto number = [&random] { return std::uint64_t{random() % 40}; };
    for (int round = 0; round < 300; ++round) {
        FrameRuns runs = FrameRuns::of(number(), number());
        std::set<std::uint64_t> frames = framesOf(runs);
        for (int step = 0; step < 6; ++step) {
            const std::uint64_t first = number();
            const FrameRuns::Run part{first, first + number() % 9};
            const auto inPart = [part](std::uint64_t f) {
                return part.first <= f && f <= part.last;
            };
            if (step % 3 == 0) {
                runs = runs.without(part);
                std::erase_if(frames, inPart);
            } else {
                runs = runs.with(part);
                for (std::uint64_t frame = part.first; frame <= part.last; ++frame)
                    frames.insert(frame);
            }
            std::set<std::uint64_t> inside = frames;
            std::erase_if(inside, [&](std::uint64_t f) { return !inPart(f); });
            ASSERT_EQ(framesOf(runs), frames);
            ASSERT_EQ(framesOf(runs.within(part)), inside);
            ASSERT_EQ(runs.without(FrameRuns::of(0, 200)), FrameRuns());
            ASSERT_EQ(runs.count(), frames.size());
            for (std::size_t run = 1; run < runs.runs().size(); ++run)
                ASSERT_GT(runs.runs()[run].first, runs.runs()[run - 1].last + 1) << "apart";
            if (frames.empty())
                continue;
            const auto next = frames.lower_bound(first);
            ASSERT_EQ(runs.nextFrom(first),
                      next == frames.end() ? std::nullopt : std::optional(*next));
            const auto last = std::ssize(frames) - 1;
            ASSERT_EQ(runs.at(static_cast<std::uint64_t>(step)),
                      *std::next(frames.begin(), std::min<std::ptrdiff_t>(step, last)));
        }
    }
}

TEST(FrameRuns, stillTimeIsShortenedWithinWhatIsKept) {
    const std::string pictures = "aaaabbcccccccd";
    const auto surplus = [&pictures](const FrameRuns &kept, std::uint64_t longest) {
        return framesOf(surplusOfStills(kept, longest, [&](std::uint64_t a, std::uint64_t b) {
            return pictures[a] == pictures[b];
        }));
    };
    const FrameRuns all = FrameRuns::of(0, pictures.size());
    using Set = std::set<std::uint64_t>;
    EXPECT_EQ(surplus(all, 2), (Set{2, 3, 8, 9, 10, 11, 12}));
    EXPECT_EQ(surplus(all, 4), (Set{10, 11, 12}));
    EXPECT_EQ(surplus(all, 7), Set{});
    // What is left out already does not count, and does not part what stands still around it.
    EXPECT_EQ(surplus(all.without({7, 9}), 2), (Set{2, 3, 11, 12}));
    EXPECT_EQ(surplus(FrameRuns(), 1), Set{});
}

} // namespace
