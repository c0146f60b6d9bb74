// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/pixel_pool.h"

#include "platform/image/image.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>
#include <vector>

TEST(PixelPool, givesTheMemoryOfAPictureThatEndedToTheNextOfItsSize) {
    const auto pool = PixelPool::create();
    QImage first = pool->take({64, 32});
    ASSERT_EQ(first.format(), QImage::Format_RGB32);
    first.fill(Qt::red);
    const uchar *memory = first.constBits();

    Image handle = Image::fromQImage(std::move(first));
    first = {};
    QImage second = pool->take({64, 32});
    EXPECT_NE(second.constBits(), memory) << "the handle still needs it";
    EXPECT_EQ(handle.toQImage().constBits(), memory) << "and holds it without a copy";
    QImage edited = handle.toQImage();
    edited.fill(Qt::blue);
    EXPECT_EQ(handle.toQImage().pixel(0, 0), qRgb(255, 0, 0)) << "editing detaches";

    handle = {};
    EXPECT_EQ(pool->take({64, 32}).constBits(), memory);
    EXPECT_EQ(pool->take({32, 64}).size(), QSize(32, 64));
    EXPECT_TRUE(pool->take({0, 64}).isNull());
}

TEST(PixelPool, holdsLittleWhenItIsIdleAndNothingOfAnotherSize) {
    const auto pool = PixelPool::create();
    {
        std::vector<QImage> recording;
        for (int i = 0; i < 20; ++i)
            recording.push_back(pool->take({64, 32}));
    }
    EXPECT_EQ(pool->idleCount(), PixelPool::mostIdle);
    const QImage other = pool->take({65, 32});
    EXPECT_EQ(pool->idleCount(), 0u);
}

TEST(PixelPool, servesPicturesThatEndOnOtherThreadsAndAfterIt) {
    auto pool = PixelPool::create();
    std::array<std::thread, 4> threads;
    for (auto &thread : threads)
        thread = std::thread([pool] {
            for (int i = 0; i < 2000; ++i) {
                const std::array pictures{pool->take({16, 16}), pool->take({16, 16})};
                ASSERT_NE(pictures[0].constBits(), pictures[1].constBits());
            }
        });
    QImage last = pool->take({16, 16});
    pool.reset();
    for (auto &thread : threads)
        thread.join();
    last.fill(Qt::white);
    EXPECT_EQ(last.pixel(15, 15), qRgb(255, 255, 255));
}
