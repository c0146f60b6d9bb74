// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// Files as decoders that are not ours compose them: ffmpeg and Pillow.
#include "tests/gif/made_clips.h"
#include "tests/gif/promise.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace {

using Canvases = std::vector<std::vector<std::uint32_t>>;

std::string temporaryFile() {
    return (std::filesystem::temp_directory_path() /
            ("tovarel-gif-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
             "-" + std::to_string(std::random_device()()) + ".gif"))
        .string();
}

/// What a program writes as 32 bits per pixel: red, green, blue, opacity.
Canvases byProgram(const std::string &command, std::size_t pixels) {
    Canvases canvases;
    std::FILE *pipe = popen(command.c_str(), "r");
    EXPECT_TRUE(pipe);
    std::vector<unsigned char> raw(pixels * 4);
    while (pipe && std::fread(raw.data(), 1, raw.size(), pipe) == raw.size()) {
        std::vector<std::uint32_t> canvas(pixels);
        for (std::size_t i = 0; i < pixels; ++i) {
            EXPECT_EQ(raw[4 * i + 3], 255);
            canvas[i] = unsigned(raw[4 * i] << 16 | raw[4 * i + 1] << 8) | raw[4 * i + 2];
        }
        canvases.push_back(std::move(canvas));
    }
    EXPECT_EQ(pclose(pipe), 0) << command;
    return canvases;
}

constexpr const char *pillow = "/usr/bin/python3 -c 'import sys\n"
                               "from PIL import Image\n"
                               "image = Image.open(sys.argv[1])\n"
                               "for i in range(getattr(image, \"n_frames\", 1)):\n"
                               "    image.seek(i)\n"
                               "    sys.stdout.buffer.write(image.convert(\"RGBA\").tobytes())' ";

void expectAllAgree(Clip &clip, float tolerance) {
    const auto bytes = clip.encoded(tolerance, 2);
    const auto gif = SlowGifReader(bytes).read();
    ASSERT_TRUE(gif);
    EXPECT_EQ(Promise(clip, *gif, tolerance).broken(), "");
    Canvases shown;
    for (const auto &picture : gif->pictures)
        shown.push_back(picture.shown);

    const std::string path = temporaryFile();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
    const auto pixels = std::size_t(clip.width()) * std::size_t(clip.height());
    EXPECT_EQ(
        byProgram("ffmpeg -v error -nostdin -i " + path +
                      " -fps_mode passthrough -enc_time_base 0.001 -f rawvideo -pix_fmt rgba -",
                  pixels),
        shown);
    EXPECT_EQ(byProgram(pillow + path, pixels), shown);
    std::filesystem::remove(path);
}

/// A window of text over a wallpaper, typed into, scrolled and with a box that fades in.
Clip likeAnInterface(int width, int height) {
    Clip clip(width, height);
    std::mt19937 random(8);
    const std::size_t w = std::size_t(width);
    Clip::Pixels pixels(w * std::size_t(height));
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const unsigned x = unsigned(i % w), y = unsigned(i / w);
        pixels[i] = (60 + x / 3 % 150 + unsigned(random()) % 6) << 16 | (40 + y / 2 % 180) << 8 |
                    (x * y / 90 % 200 + unsigned(random()) % 9);
    }
    const auto fill = [&](unsigned left, unsigned top, unsigned right, unsigned bottom, auto f) {
        for (std::size_t y = top; y < bottom; ++y)
            for (std::size_t x = left; x < right; ++x)
                pixels[y * w + x] = f(pixels[y * w + x]);
    };
    fill(20, 20, unsigned(width) - 30, unsigned(height) - 20, [](auto) { return 0xFAFAF5u; });
    clip.add(pixels, 7);
    for (unsigned i = 0; i < 12; ++i) {
        if (i < 6)
            fill(30 + i * 9, 30, 36 + i * 9, 42,
                 [&](auto) { return random() % 3 ? 0x202428u : 0x90A0B0u; });
        else if (i < 9)
            std::copy(pixels.begin() + std::ptrdiff_t(w * 33),
                      pixels.begin() + std::ptrdiff_t(w * 90),
                      pixels.begin() + std::ptrdiff_t(w * 30));
        else
            fill(60, 40, 140, 100, [](std::uint32_t p) { return (p >> 1 & 0x7F7F7F) + 0x203010; });
        clip.add(pixels, 6 + i % 2);
        if (i % 3 == 0)
            clip.add(pixels, 7);
    }
    return clip;
}

} // namespace

TEST(Decoders, allComposeWhatWasRecorded) {
    Clip interface = likeAnInterface(220, 130);
    for (const float tolerance : {gif::bestTolerance, gif::balancedTolerance, gif::smallTolerance})
        expectAllAgree(interface, tolerance);
    std::mt19937 random(30);
    for (int i = 0; i < 6; ++i) {
        Clip clip = madeClip([&] { return unsigned(random()); });
        expectAllAgree(clip, float(i % 3) * 2.5f);
    }
}

TEST(Decoders, readWhatIsAtTheLimits) {
    Clip point(1, 1);
    point.add(0xFF8000, 5);
    point.add(0x0080FF, 70000);
    expectAllAgree(point, 0);
    Clip wide(16384, 2);
    wide.add(0x112233);
    Clip::Pixels pixels = wide.pixels(0);
    pixels.back() = 0x332211;
    wide.add(pixels);
    expectAllAgree(wide, gif::balancedTolerance);
}
