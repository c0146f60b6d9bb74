// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/image_reader.h"
#include "platform/image/image_scaler.h"
#include "platform/image/tile_store.h"

#include <QColor>
#include <QPainter>

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

/// A recording: what the pictures were, and what was kept of them.
struct Kept {
    std::vector<QImage> pictures;
    std::vector<Image> images;
};

QRect randomRect(std::mt19937 &random, QSize size) {
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    return {below(size.width()), below(size.height()), 1 + below(size.width()),
            1 + below(1 + size.height() / 4)};
}

void draw(QImage &picture, const QRect &where, std::mt19937 &random, bool noise) {
    const QRect place = where.intersected(picture.rect());
    const QRgb plain = static_cast<QRgb>(random()) | 0xff000000u;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            picture.setPixel(x, y, noise ? static_cast<QRgb>(random()) | 0xff000000u : plain);
}

/// Pictures of which each differs from the last in some rectangle, whose place is told for two of
/// three, as when a grab came in between.
Kept record(TileStore &store, QSize size, QImage::Format format, int count) {
    std::mt19937 random(7);
    QImage picture(size, format);
    picture.fill(format == QImage::Format_RGB32 ? QColor(Qt::darkBlue) : QColor(0, 0, 0, 0));
    Kept kept;
    Image last;
    for (int i = 0; i < count; ++i) {
        const QRect where = randomRect(random, size);
        draw(picture, where, random, i % 2 == 0);
        Image::Change change;
        if (i % 3 != 0)
            change = {last.identity(), QRegion(where)};
        last = Image::fromQImage(picture.copy(), change);
        kept.pictures.push_back(picture.copy());
        kept.images.push_back(store.keep(last, kept.images.empty() ? Image() : kept.images.back()));
        EXPECT_TRUE(kept.images.back().sameAs(last));
    }
    return kept;
}

TEST(TileStore, givesBackTheExactPixelsInAnyOrderWhileItCompresses) {
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied})
        for (const QSize size : {QSize(333, 190), QSize(64, 64), QSize(1, 1)}) {
            TileStore store;
            const Kept kept = record(store, size, format, 40);
            std::mt19937 random(3);
            ImageReader reader;
            QImage before;
            for (int i = 0; i < 200; ++i) {
                const std::size_t frame = random() % kept.images.size();
                const QImage &read = reader.read(kept.images[frame]);
                ASSERT_EQ(read, kept.pictures[frame]) << "frame " << frame;
                ASSERT_EQ(kept.images[frame].toQImage(), kept.pictures[frame]);
                // What is not told as changed has stayed.
                if (!before.isNull()) {
                    QImage unchanged = read.copy();
                    QPainter painter(&unchanged);
                    painter.setCompositionMode(QPainter::CompositionMode_Source);
                    painter.setClipRegion(reader.changed());
                    painter.drawImage(0, 0, before);
                    painter.end();
                    ASSERT_EQ(unchanged, before);
                }
                before = read.copy();
            }
        }
}

TEST(TileStore, holdsOnceWhatPicturesShareAndNothingWhenTheyEnd) {
    constexpr QSize size(1920, 1080);
    constexpr std::size_t raw = 1920 * 1080 * 4;
    TileStore store;
    {
        QImage picture(size, QImage::Format_RGB32);
        std::mt19937 random(1);
        draw(picture, picture.rect(), random, true);
        std::vector<Image> images{store.keep(Image::fromQImage(picture.copy()), {})};
        const std::size_t first = store.bytesHeld();
        EXPECT_GE(first, raw);
        EXPECT_LE(first, raw / 100 * 102);
        EXPECT_TRUE(store.keep(images.front(), images.front()).sameAs(images.front()));
        EXPECT_EQ(store.bytesHeld(), first);

        for (int i = 0; i < 10; ++i) {
            draw(picture, {100 + i * 9, 200, 9, 16}, random, false);
            images.push_back(store.keep(Image::fromQImage(picture.copy()), images.back()));
        }
        store.waitUntilCompressed();
        EXPECT_LE(store.bytesHeld() - first, 10 * 2 * (64 * 64 * 4 + 4096))
            << "one or two tiles each, and a row of handles";
    }
    EXPECT_EQ(store.bytesHeld(), 0u);

    const QImage plain = [size] {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::gray);
        return picture;
    }();
    const Image grey = store.keep(Image::fromQImage(plain), {});
    store.waitUntilCompressed();
    EXPECT_LE(store.bytesHeld(), raw / 20)
        << "a plain picture is compressed, but for a few tiles after noise";
    EXPECT_EQ(grey.toQImage(), plain);
}

TEST(ImageScaler, followsAChangeAsIfTheWholePictureWereScaledAnew) {
    TileStore store;
    const Kept kept = record(store, {700, 410}, QImage::Format_RGB32, 30);
    for (const QSize view : {QSize(700, 410), QSize(301, 176), QSize(120, 70), QSize(900, 527)}) {
        ImageScaler following;
        for (std::size_t i = 0; i < kept.images.size(); ++i) {
            const QImage &followed =
                following.scaled(kept.images[i], view, 1.0, ImageScaler::Care::Quick);
            ImageScaler anew;
            const QImage &whole = anew.scaled(Image::fromQImage(kept.pictures[i]), view, 1.0,
                                              ImageScaler::Care::Quick);
            int furthest = 0;
            for (int y = 0; y < view.height(); ++y)
                for (int x = 0; x < view.width(); ++x) {
                    const QRgb a = followed.pixel(x, y), b = whole.pixel(x, y);
                    furthest =
                        std::max({furthest, std::abs(qRed(a) - qRed(b)),
                                  std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
                }
            // Where interpolation starts in the midst of a row it rounds otherwise.
            ASSERT_LE(furthest, 2) << "frame " << i << " at width " << view.width();
        }
    }
}

Image halves(QColor left, QColor right) {
    QImage picture(40, 20, QImage::Format_ARGB32);
    picture.fill(left);
    for (int y = 0; y < 20; ++y)
        for (int x = 20; x < 40; ++x)
            picture.setPixelColor(x, y, right);
    return Image::fromQImage(picture);
}

} // namespace

TEST(ImageScaler, bothCaresFillTheSizeAndTransparencyShowsBlack) {
    for (const auto care : {ImageScaler::Care::Fine, ImageScaler::Care::Quick}) {
        ImageScaler scaler;
        const QImage &first = scaler.scaled(halves(Qt::red, Qt::transparent), {80, 60}, 1.0, care);
        EXPECT_EQ(first.size(), QSize(80, 60));
        EXPECT_EQ(first.pixelColor(5, 55), QColor(Qt::red));
        EXPECT_EQ(first.pixelColor(75, 5), QColor(Qt::black));
        // The memory is used again: nothing of the picture before may shine through.
        const QImage &second =
            scaler.scaled(halves(Qt::transparent, Qt::blue), {80, 60}, 1.0, care);
        EXPECT_EQ(second.pixelColor(5, 55), QColor(Qt::black));
        EXPECT_EQ(second.pixelColor(75, 5), QColor(Qt::blue));
    }
}

TEST(ImageScaler, linesOfOnePixelBecomeGreyInsteadOfVanishingWhenShrunk) {
    QImage lines(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            lines.setPixel(x, y, x % 2 == 0 ? qRgb(255, 128, 0) : qRgb(0, 0, 0));
    for (const QSize size : {QSize(32, 32), QSize(20, 20), QSize(16, 16)}) {
        ImageScaler scaler;
        const QImage &small =
            scaler.scaled(Image::fromQImage(lines), size, 1.0, ImageScaler::Care::Quick);
        EXPECT_EQ(small.pixel(9, 9), qRgb(127, 64, 0)) << size.width();
    }
}
