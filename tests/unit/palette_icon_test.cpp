// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/palette_icon.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

namespace {

const QString record = QStringLiteral(":/icons/record.svg");

/// The application's palette for as long as this lives, then the one before.
class PaletteForNow {
public:
    PaletteForNow(const QColor &text, const QColor &disabled) : before_(QApplication::palette()) {
        QPalette palette = before_;
        palette.setColor(QPalette::ButtonText, text);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, disabled);
        QApplication::setPalette(palette);
    }
    ~PaletteForNow() { QApplication::setPalette(before_); }
    PaletteForNow(const PaletteForNow &) = delete;
    PaletteForNow &operator=(const PaletteForNow &) = delete;

private:
    QPalette before_;
};

QImage drawn(const QIcon &icon, QIcon::Mode mode = QIcon::Normal, qreal scale = 1) {
    return icon.pixmap(QSize(24, 24), scale, mode).toImage();
}

QColor middle(const QIcon &icon, QIcon::Mode mode = QIcon::Normal) {
    return drawn(icon, mode).pixelColor(12, 12);
}

TEST(PaletteIcon, takesThePalettesColoursAtTheMomentOfPainting) {
    const QIcon plain = paletteIcon(record);
    const QIcon red = paletteIcon(record, Qt::red);
    for (const auto &[text, disabled] :
         {std::pair{QColor(Qt::black), QColor(Qt::lightGray)}, {Qt::white, Qt::darkGray}}) {
        const PaletteForNow theme(text, disabled);
        EXPECT_EQ(middle(plain), text);
        EXPECT_EQ(middle(plain, QIcon::Disabled), disabled);
        EXPECT_EQ(middle(red), QColor(Qt::red));
        EXPECT_EQ(middle(red, QIcon::Disabled), disabled) << "a disabled control is never red";
    }
}

TEST(PaletteIcon, everyDrawingShowsAndHasNoColourOfItsOwn) {
    const PaletteForNow theme(Qt::green, Qt::gray);
    const QStringList files = QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.svg")});
    EXPECT_GE(files.size(), 8);
    for (const QString &file : files) {
        // The program's own icon, and its states, keep their colours.
        if (file.startsWith(QLatin1String("tovarel")))
            continue;
        const QImage image = drawn(paletteIcon(QStringLiteral(":/icons/") + file))
                                 .convertToFormat(QImage::Format_ARGB32);
        int opaque = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                if (pixel.alpha() < 255)
                    continue;
                ++opaque;
                EXPECT_EQ(pixel, QColor(Qt::green)) << qPrintable(file) << " at " << x << ',' << y;
            }
        EXPECT_GT(opaque, 20) << qPrintable(file);
    }
}

} // namespace
