// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/frame_store_source.h"
#include "platform/image/tile_store.h"

#include <QPainter>

#include <gtest/gtest.h>

TEST(FrameStoreSource, handsOutWhatWasKeptAndWhereItDiffers) {
    TileStore store;
    QImage picture(200, 150, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    std::vector<FrameStoreSource::Shown> frames;
    std::vector<QImage> pictures;
    for (int i = 0; i < 4; ++i) {
        if (i > 0)
            QPainter(&picture).fillRect(10 * i, 70, 8, 5, QColor(50 * i, 20, 90));
        const Image before = frames.empty() ? Image() : frames.back().image;
        const ImageChange change{before.identity(), QRect(10 * i, 70, 8, 5)};
        const Image image = Image::fromQImage(picture.copy(), i > 0 ? change : ImageChange());
        frames.push_back({store.keep(image, before), 5 + i});
        pictures.push_back(picture.copy());
    }
    frames.push_back({Image::fromQImage(QImage(3, 3, QImage::Format_RGB32)), 10});
    FrameStoreSource source(frames);
    EXPECT_EQ(source.size(), QSize(200, 150));
    for (int turn = 0; turn < 2; ++turn) {
        gif::Frame frame;
        for (int i = 0; i < 4; ++i) {
            ASSERT_TRUE(source.next(frame));
            EXPECT_EQ(frame.delay, 5 + i);
            for (int y = 0; y < 150; ++y)
                for (int x = 0; x < 200; ++x)
                    ASSERT_EQ(frame.pixels[y * frame.stride + x] & 0xFFFFFF,
                              pictures[std::size_t(i)].pixel(x, y) & 0xFFFFFF);
            int area = 0;
            for (const gif::Rect &rect : frame.changed)
                area += rect.width * rect.height;
            EXPECT_TRUE(i == 0 ? area == 200 * 150 : area >= 40 && area < 200 * 150);
        }
        EXPECT_FALSE(source.next(frame)) << "a frame of another size ends the recording";
        EXPECT_EQ(source.handedOut(), 4u);
        EXPECT_TRUE(source.rewind());
    }
}
