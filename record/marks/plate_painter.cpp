// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/marks/plate_painter.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

// Pixels.
constexpr int largestText = 18;
constexpr int smallestText = 7;
constexpr int heightsPerText = 14; // a frame is that much higher than the text, unless it is large

constexpr QColor ground(24, 24, 26, 200);
constexpr QColor ink(255, 255, 255);

QFont fontFor(int pixels) {
    QFont font;
    font.setPixelSize(pixels);
    font.setWeight(QFont::DemiBold);
    return font;
}

struct Layout {
    QRect place;
    QFont font;
};

Layout layoutOf(const Plate &plate, QSize frame) {
    for (int pixels = std::min(largestText, frame.height() / heightsPerText);
         pixels >= smallestText; --pixels) {
        const QFont font = fontFor(pixels);
        const QFontMetrics metrics(font);
        const QSize size(metrics.horizontalAdvance(plate.text) + 2 * pixels,
                         metrics.height() + pixels);
        const QPoint corner((frame.width() - size.width()) / 2,
                            frame.height() - size.height() - pixels);
        if (corner.x() >= 0 && corner.y() >= 0)
            return {QRect(corner, size), font};
    }
    return {};
}

} // namespace

QRect plateBounds(const Plate &plate, QSize frame) { return layoutOf(plate, frame).place; }

void paintPlate(QPainter &painter, const Plate &plate, QSize frame) {
    const Layout layout = layoutOf(plate, frame);
    if (layout.place.isEmpty())
        return;
    const double corner = layout.font.pixelSize() / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(layout.place, corner, corner);
    painter.setFont(layout.font);
    painter.setPen(ink);
    painter.drawText(layout.place, Qt::AlignCenter, plate.text);
}
