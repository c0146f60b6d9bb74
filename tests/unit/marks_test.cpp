// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/image_reader.h"
#include "platform/image/tile_store.h"
#include "record/marks/marks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

QImage noise(QSize size, QImage::Format format, unsigned seed) {
    std::mt19937 random(seed);
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, static_cast<QRgb>(random()));
    return picture.convertToFormat(format);
}

const QImage pointerShape = noise({11, 14}, QImage::Format_ARGB32_Premultiplied, 5);

MarksShown pointerAt(QPoint place) {
    return {.pointer = Pointer{.place = place, .shape = pointerShape, .hotSpot = {3, 2}}};
}

/// One premultiplied value of `shape` at a pixel of the desktop, nothing outside.
QRgb shapeAt(const Pointer &pointer, QPoint pixel) {
    const QPoint at = pixel - pointer.place + pointer.hotSpot;
    return pointer.shape.rect().contains(at)
               ? reinterpret_cast<const QRgb *>(pointer.shape.constScanLine(at.y()))[at.x()]
               : 0u;
}

/// The picture with the pointer over it, one channel of one pixel after the other: those pixels of
/// the desktop that become one are averaged before they cover what is beneath.
QImage slowly(QImage picture, const FramePlace &place, const Pointer &pointer) {
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            double alpha = 0, red = 0, green = 0, blue = 0;
            for (int part = 0; part < place.density * place.density; ++part) {
                const QRgb from =
                    shapeAt(pointer, place.origin + QPoint(x, y) * place.density +
                                         QPoint(part % place.density, part / place.density));
                const double weight = 1.0 / (place.density * place.density);
                alpha += weight * qAlpha(from);
                red += weight * qRed(from);
                green += weight * qGreen(from);
                blue += weight * qBlue(from);
            }
            const QRgb under = picture.pixel(x, y);
            const auto mixed = [&](double over, int beneath) {
                return static_cast<int>(std::lround(over + beneath * (255 - alpha) / 255));
            };
            picture.setPixel(x, y,
                             qRgb(mixed(red, qRed(under)), mixed(green, qGreen(under)),
                                  mixed(blue, qBlue(under))));
        }
    return picture;
}

int furthest(const QImage &a, const QImage &b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            for (const int shift : {0, 8, 16}) {
                const auto channel = [shift](QRgb pixel) {
                    return static_cast<int>(pixel >> shift & 0xff);
                };
                most = std::max(most, std::abs(channel(a.pixel(x, y)) - channel(b.pixel(x, y))));
            }
    return most;
}

/// Where two pictures are not alike.
QRegion differing(const QImage &a, const QImage &b) {
    QRegion region;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y))
                region += QRect(x, y, 1, 1);
    return region;
}

} // namespace

TEST(Marks, coverAFrameAsTheSlowReferenceDoesWhereverThePointerIs) {
    const QImage plain = noise({60, 40}, QImage::Format_RGB32, 2);
    const Image frame = Image::fromQImage(plain);
    for (const int density : {1, 2})
        for (const QPoint origin : {QPoint(0, 0), QPoint(101, -50)})
            for (const QPoint at : {QPoint(20, 20), QPoint(21, 20), QPoint(20, 21), QPoint(0, 0),
                                    QPoint(59 * density, 39 * density), QPoint(-9, 5)}) {
                const FramePlace place{.origin = origin, .density = density};
                const MarksShown shown = pointerAt(origin + at);
                Marks marks;
                const Image marked = marks.over(frame, place, shown);
                EXPECT_LE(furthest(marked.toQImage(), slowly(plain, place, *shown.pointer)), 2)
                    << density << ": " << at.x() << ", " << at.y();
                EXPECT_EQ(frame.toQImage(), plain) << "what lies beneath is never drawn on";
                EXPECT_EQ(marked.sameAs(frame), at.x() == -9) << "it is outside";
            }
}

TEST(Marks, changeAFrameWhereTheyWereAndAreAndNowhereElse) {
    const QImage plain = noise({300, 200}, QImage::Format_RGB32, 3);
    Image frame = Image::fromQImage(plain);
    Marks marks;
    const Image first = marks.over(frame, {}, pointerAt({50, 60}));
    EXPECT_TRUE(marks.over(frame, {}, pointerAt({50, 60})).sameAs(first));
    const Image second = marks.over(frame, {}, pointerAt({250, 70}));
    const QRegion places = QRegion(47, 58, 11, 14) + QRect(247, 68, 11, 14);
    EXPECT_EQ(second.changesSince(first), places);
    EXPECT_EQ(differing(first.toQImage(), second.toQImage()).subtracted(places), QRegion());

    // The desktop changes as well.
    QImage changed = plain;
    changed.setPixel(3, 4, qRgb(1, 2, 3));
    frame = Image::fromQImage(changed, {frame.identity(), QRect(3, 4, 1, 1)});
    const Image third = marks.over(frame, {}, pointerAt({250, 70}));
    EXPECT_EQ(third.changesSince(second), QRegion(3, 4, 1, 1) + QRect(247, 68, 11, 14));
    EXPECT_EQ(frame.changesSince(third), QRegion(247, 68, 11, 14)) << "the pointer has left";
    EXPECT_TRUE(marks.over(frame, {}, {}).sameAs(frame));
}

TEST(Marks, areKeptWithTheFramesAndLeaveNothingBehind) {
    constexpr QSize size(1920, 1080);
    QImage plain(size, QImage::Format_RGB32);
    plain.fill(Qt::darkCyan);
    Image frame = Image::fromQImage(plain.copy());
    TileStore store;
    Marks marks;
    std::vector<Image> kept;
    std::vector<QImage> wanted;
    std::mt19937 random(9);
    ImageReader grabs, frames;
    std::size_t before = 0;
    for (int i = 0; i < 60; ++i) {
        if (i % 10 == 5) { // the desktop changes, sometimes beneath the pointer
            plain.fill(QColor::fromHsv(i, 200, 200));
            frame = Image::fromQImage(plain.copy(), {frame.identity(), plain.rect()});
        }
        const MarksShown shown =
            i % 7 == 6
                ? MarksShown{}
                : pointerAt({static_cast<int>(random() % 1920), static_cast<int>(random() % 1080)});
        const Image marked = marks.over(frame, {}, shown);
        kept.push_back(store.keep(marked, kept.empty() ? Image() : kept.back()));
        wanted.push_back(marked.toQImage());
        ASSERT_TRUE(kept.back().sameAs(marked));
        ASSERT_EQ(grabs.read(marked), wanted.back()) << i;
        ASSERT_EQ(frames.read(kept.back()), wanted.back()) << i;
        if (i == 1 || i == 4)
            store.waitUntilCompressed();
        if (i == 1)
            before = store.bytesHeld();
        if (i == 4) {
            EXPECT_LE(store.bytesHeld(), before + std::size_t{3} * 6 * 1024);
        }
    }
    for (int i = 0; i < 100; ++i) {
        const std::size_t at = random() % kept.size();
        ASSERT_EQ(frames.read(kept[at]), wanted[at]) << at;
    }
    kept.clear();
    frames = {};
    EXPECT_EQ(store.bytesHeld(), 0u);
}
