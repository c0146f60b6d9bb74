// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image_scaler.h"

#include <gtest/gtest.h>

namespace {

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
