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

} // namespace

TEST(Decoders, allComposeWhatWasRecorded) {
    Clip large = noise(220, 130, 3);
    for (const float tolerance : {gif::bestTolerance, gif::balancedTolerance, gif::smallTolerance})
        expectAllAgree(large, tolerance);
    std::mt19937 random(30);
    for (int i = 0; i < 12; ++i) {
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
