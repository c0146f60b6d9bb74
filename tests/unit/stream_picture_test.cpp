// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/portal/stream_picture.h"

#include <gtest/gtest.h>

#include <random>

namespace {

/// A frame as a compositor hands it out: rows longer than the picture, anything in the upper byte.
struct Frame {
    Frame(int width, int height)
        : size(width, height), words(static_cast<std::size_t>((width + 3) * height), 0x7f102030) {}

    std::uint32_t &at(int x, int y) {
        return words[static_cast<std::size_t>(y * (size.width() + 3) + x)];
    }
    PixelRows rows() const { return {words.data(), size.width() + 3}; }

    QSize size;
    std::vector<std::uint32_t> words;
};

TEST(StreamPicture, isTheSameUntilAColourChangesAndThenTellsWhere) {
    StreamPicture picture;
    EXPECT_FALSE(picture.take());
    Frame frame(150, 70);
    picture.put(frame.rows(), frame.size);
    const Image first = picture.take().value();
    EXPECT_EQ(first.toQImage().pixel(149, 69), 0xff102030);
    for (std::uint32_t &word : frame.words)
        word ^= 0x80000000;
    picture.put(frame.rows(), frame.size);
    EXPECT_TRUE(picture.take()->sameAs(first)) << "the upper byte means nothing";

    frame.at(149, 69) = 1;
    picture.put(frame.rows(), frame.size);
    frame.at(0, 0) = 2;
    picture.put(frame.rows(), frame.size);
    const Image second = picture.take().value();
    EXPECT_EQ(second.changesSince(first), QRegion(0, 0, 64, 64) + QRegion(128, 64, 22, 6));
    EXPECT_EQ(first.toQImage().pixel(0, 0), 0xff102030) << "what was handed out stays";
    EXPECT_EQ(second.toQImage().pixel(0, 0), 0xff000002);
    EXPECT_EQ(second.toQImage().pixel(149, 69), 0xff000001);

    Frame larger(160, 70);
    picture.put(larger.rows(), larger.size);
    const Image third = picture.take().value();
    EXPECT_EQ(third.size(), larger.size);
    EXPECT_FALSE(third.changesSince(second));
    larger.at(3, 3) = 0x00112233;
    picture.put(larger.rows(), larger.size, StreamPicture::Order::RedFirst);
    EXPECT_EQ(picture.take()->toQImage().pixel(3, 3), 0xff332211);
}

TEST(StreamPicture, holdsEveryPixelHoweverManyPicturesAreStillInUse) {
    StreamPicture picture;
    Frame frame(200, 140);
    std::mt19937 random(7); // NOLINT: the same each time
    std::vector<std::pair<Image, QImage>> kept;
    for (int i = 0; i < 300; ++i) {
        for (auto n = random() % 3; n > 0; --n)
            frame.at(static_cast<int>(random() % 200), static_cast<int>(random() % 140)) =
                static_cast<std::uint32_t>(random());
        picture.put(frame.rows(), frame.size);
        if (random() % 2)
            continue;
        QImage expected(frame.size, QImage::Format_RGB32);
        for (int y = 0; y < 140; ++y)
            for (int x = 0; x < 200; ++x)
                expected.setPixel(x, y, frame.at(x, y) | 0xff000000);
        kept.emplace_back(picture.take().value(), expected);
        if (random() % 3)
            kept.erase(kept.begin());
        for (const auto &[image, pixels] : kept)
            ASSERT_EQ(image.toQImage(), pixels) << i;
    }
}

} // namespace
