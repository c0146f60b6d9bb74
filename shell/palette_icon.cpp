// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/palette_icon.h"

#include "shell/contrast.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <utility>

namespace {

constexpr double rimShare = 0.07; // of the side, around an accent on dark buttons

class PaletteIconEngine : public QIconEngine {
public:
    PaletteIconEngine(QByteArray drawing, const QColor &accent)
        : drawing_(std::move(drawing)), accent_(accent) {}

    QIconEngine *clone() const override { return new PaletteIconEngine(*this); }

    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State) override {
        const int side = qMin(place.width(), place.height());
        QRectF square(0, 0, side, side);
        square.moveCenter(QRectF(place).center());
        const QColor main = colour(mode);
        if (isOnDark(main)) {
            draw(*painter, square, QGuiApplication::palette().color(QPalette::ButtonText));
            const double rim = side * rimShare;
            square.adjust(rim, rim, -rim, -rim);
        }
        draw(*painter, square, main);
    }

    /// `size` is in pixels of the screen: a drawing needs no scale beside it.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        painter.end();
        return QPixmap::fromImage(image);
    }

private:
    void draw(QPainter &painter, const QRectF &square, const QColor &colour) const {
        QByteArray coloured = drawing_;
        coloured.replace("currentColor", colour.name(QColor::HexRgb).toLatin1());
        QSvgRenderer(coloured).render(&painter, square);
    }

    /// Styles make dark buttons lighter than the palette says: an accent may be lost on them.
    bool isOnDark(const QColor &main) const {
        const QPalette palette = QGuiApplication::palette();
        return accent_.isValid() && main == accent_ &&
               luminance(palette.color(QPalette::ButtonText)) > luminance(accent_);
    }

    QColor colour(QIcon::Mode mode) const {
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::ButtonText);
        case QIcon::Selected:
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        case QIcon::Normal:
        case QIcon::Active:
            break;
        }
        return accent_.isValid() ? accent_ : palette.color(QPalette::Active, QPalette::ButtonText);
    }

    QByteArray drawing_;
    QColor accent_;
};

} // namespace

// It has no `currentColor` in it that would be replaced.
QIcon drawnIcon(const QString &path) { return paletteIcon(path); }

QIcon paletteIcon(const QString &path, const QColor &accent) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("the icon %s cannot be read", qUtf8Printable(path));
        return {};
    }
    return QIcon(new PaletteIconEngine(file.readAll(), accent));
}
