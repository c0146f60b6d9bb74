// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/gif/made_clips.h"
#include "tests/gif/promise.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <random>
#include <thread>

using gif::Outcome;

namespace {

SlowGif readBack(const std::vector<std::uint8_t> &bytes) {
    const auto gif = SlowGifReader(bytes).read();
    EXPECT_TRUE(gif);
    return gif.value_or(SlowGif());
}

} // namespace

TEST(Colour, differsAsOthersMeasure) {
    const struct {
        gif::Rgb x, y;
        float difference;
    } pairs[] = {{0x000000, 0xFFFFFF, 100.0000f}, {0x808080, 0x828282, 0.7530f},
                 {0x2040F0, 0x2838E0, 2.8778f},   {0xFF0000, 0xF01010, 3.2260f},
                 {0x10C030, 0x18C828, 2.3930f},   {0xF8F0E0, 0xF8F8F8, 7.4189f},
                 {0x401080, 0x500888, 2.8279f},   {0x030201, 0x000000, 0.6024f}};
    for (const auto &[x, y, difference] : pairs) {
        EXPECT_NEAR(gif::colourDifference(x, y), difference, 0.01f) << std::hex << x;
        EXPECT_NEAR(gif::colourDifference(y, x), difference, 0.01f) << std::hex << x;
    }
    // The quick measure agrees for colours that are near each other.
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        const auto x = gif::Rgb(random()) & 0xF0F0F0, y = x + (gif::Rgb(random()) & 0x0F0F0F);
        const float slow = gif::colourDifference(x, y);
        const float quick = std::sqrt(gif::squaredDistance(gif::perceived(x), gif::perceived(y)));
        ASSERT_NEAR(quick, slow, 0.65f * std::max(quick, slow)) << std::hex << x << ' ' << y;
    }
}

TEST(GifEncoder, keepsItsPromiseForClipsOfAllKinds) {
    std::mt19937 random(20);
    for (int i = 0; i < 100; ++i) {
        Clip clip = madeClip([&] { return unsigned(random()); });
        for (const float tolerance : {0.0f, 0.7f, 2.0f, 5.0f}) {
            const SlowGif gif = readBack(clip.encoded(tolerance));
            ASSERT_EQ(Promise(clip, gif, tolerance).broken(), "") << i << " at " << tolerance;
        }
    }
}

TEST(GifEncoder, makesTheSameBytesWithAnyNumberOfThreads) {
    std::mt19937 random(21);
    for (int i = 0; i < 30; ++i) {
        Clip clip = madeClip([&] { return unsigned(random()); });
        const float tolerance = float(i % 3) * 1.5f;
        const auto bytes = clip.encoded(tolerance, 1);
        for (const int threads : {2, 3, 7})
            ASSERT_EQ(clip.encoded(tolerance, threads), bytes) << i << ' ' << threads;
    }
}

TEST(GifEncoder, readsOnlyWhereAFrameMayDiffer) {
    Clip clip(40, 30);
    clip.add(0x102030);
    Clip::Pixels pixels = clip.pixels(0);
    pixels[5 * 40 + 7] = 0xFFFFFFFF; // what is above the colour does not matter
    clip.add(pixels, 10, {{-5, -5, 20, 20}, {6, 4, 3, 3}, {35, 25, 64, 64}});
    clip.add(pixels, 10, {});
    const SlowGif gif = readBack(clip.encoded(0));
    ASSERT_EQ(gif.pictures.size(), 2u);
    const auto &second = gif.pictures[1];
    EXPECT_EQ(second.x, 7);
    EXPECT_EQ(second.y, 5);
    EXPECT_EQ(second.width * second.height, 1);
    EXPECT_EQ(second.delay, 20);
    EXPECT_EQ(Promise(clip, gif, 0).broken(), "");
}

TEST(GifEncoder, showsStillsForAsLongAsTheyLast) {
    for (const std::int64_t delay : {65535, 65536, 131070, 131071, 1000000}) {
        Clip clip(3, 2);
        clip.add(0x405060, delay - 10);
        clip.add(0x405060, 10);
        clip.add(0xFFFFFF, 10);
        const SlowGif gif = readBack(clip.encoded(0));
        EXPECT_EQ(Promise(clip, gif, 0).broken(), "") << delay;
        EXPECT_EQ(clip.outcome.delay, delay + 10);
        EXPECT_EQ(gif.pictures.size(), std::size_t((delay + 65534) / 65535 + 1));
        EXPECT_EQ(clip.outcome.pictures, std::int64_t(gif.pictures.size()));
    }
}

TEST(GifEncoder, saysHowOftenItIsRepeated) {
    for (const int repeats : {-1, 0, 1, 65535}) {
        Clip clip(2, 2);
        clip.add(0);
        gif::Options options{.width = 2, .height = 2};
        options.repeats = repeats < 0 ? std::nullopt : std::optional(std::uint16_t(repeats));
        std::vector<std::uint8_t> bytes;
        gif::encode(clip, options, [&](auto part) {
            bytes.insert(bytes.end(), part.begin(), part.end());
            return true;
        });
        EXPECT_EQ(readBack(bytes).repeats, repeats);
    }
}

TEST(GifEncoder, endsEarlyForAReasonThatItTells) {
    gif::Options options{.width = 64, .height = 64};
    Clip clip = noise(64, 64, 6);
    const std::uint64_t size = clip.encoded(gif::balancedTolerance).size();
    for (const std::uint64_t limit : {std::uint64_t(0), std::uint64_t(900), size - 1, size}) {
        options.sizeLimit = limit;
        clip.rewind();
        std::uint64_t got = 0;
        const Outcome outcome = gif::encode(clip, options, [&](auto part) {
            got += part.size();
            return true;
        });
        EXPECT_EQ(outcome.end, limit == size ? Outcome::End::Complete : Outcome::End::TooLarge);
        EXPECT_EQ(outcome.bytes, got);
        EXPECT_LE(got, limit);
    }
    options.sizeLimit.reset();
    clip.rewind();
    EXPECT_EQ(gif::encode(clip, options, [](auto) { return false; }).end, Outcome::End::SinkFailed);
    Clip none(64, 64);
    none.encoded(0);
    EXPECT_EQ(none.outcome.end, Outcome::End::NoFrames);
    EXPECT_EQ(none.outcome.bytes, 0u);
}

TEST(GifEncoder, stopsSoonAndTellsHowFarItIs) {
    using Clock = std::chrono::steady_clock;
    for (const int threads : {1, 2}) {
        Clip clip = noise(1500, 1000, 3);
        gif::Options options{.width = 1500, .height = 1000, .threads = threads};
        std::stop_source stop;
        std::atomic<Clock::time_point> asked = Clock::now();
        options.progress = [&](std::int64_t frames) { EXPECT_EQ(frames, 1); };
        std::jthread later([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(120));
            asked = Clock::now();
            stop.request_stop();
        });
        const auto takesAll = [](auto) { return true; };
        const Outcome outcome = gif::encode(clip, options, takesAll, stop.get_token());
        const auto took = Clock::now() - asked.load();
        EXPECT_EQ(outcome.end, Outcome::End::Cancelled);
        // A tenth of a second is promised; the machine may be busy with other things.
        EXPECT_LT(took, std::chrono::milliseconds(600));
    }
}
