// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/view_region_how_to.h"

#include "region/view_transparent_region.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace {

constexpr QSize wholeSize(420, 190); // points
constexpr int regionWidth = 190;     // points, at least
constexpr int besideWords = 16;      // points between the region's words and its edges
constexpr double regionHeight = 86;  // points
constexpr double arrowLength = 22;   // points
constexpr double arrowHead = 5;      // points

/// An arrow along a diagonal, with a head at both ends: a corner goes either way.
void drawArrow(QPainter &painter, const QPointF &from, double dx, double dy) {
    const QPointF to = from + QPointF(dx, dy) * arrowLength;
    painter.drawLine(from, to);
    painter.drawLine(to, to - QPointF(dx * arrowHead, 0));
    painter.drawLine(to, to - QPointF(0, dy * arrowHead));
    painter.drawLine(from, from + QPointF(dx * arrowHead, 0));
    painter.drawLine(from, from + QPointF(0, dy * arrowHead));
}

} // namespace

/// As wide as the words in it need in this language and font.
int View_Region_How_To::widthOfRegion() const {
    const int words = fontMetrics().horizontalAdvance(qtTrId("IDD_REGION_HOW_TO_ACCEPT"));
    return std::max(regionWidth, words + 2 * besideWords);
}

QSize View_Region_How_To::sizeHint() const {
    return wholeSize + QSize(widthOfRegion() - regionWidth, 0);
}

void View_Region_How_To::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF screen = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(screen, 6, 6);

    const auto squares =
        region_geometry::initialSquares(widthOfRegion(), regionHeight, width(), height());
    const auto region = region_geometry::boundingRegion(squares);
    region_drawing::draw(
        painter, region_drawing::pieces(squares, region, height(), devicePixelRatioF(), QPoint()),
        palette().color(QPalette::Highlight));

    painter.setPen(QPen(palette().color(QPalette::Text), 1.5));
    const QRectF box(region.x, height() - region.y - region.height, region.width, region.height);
    constexpr double clear = 11; // from a corner to its arrow, beyond the square
    drawArrow(painter, box.topLeft() + QPointF(-clear, -clear), -1, -1);
    drawArrow(painter, box.topRight() + QPointF(clear, -clear), 1, -1);
    drawArrow(painter, box.bottomLeft() + QPointF(-clear, clear), -1, 1);
    drawArrow(painter, box.bottomRight() + QPointF(clear, clear), 1, 1);

    const int line = fontMetrics().height();
    const auto write = [&](double y, const QString &words) {
        painter.drawText(QRectF(0, y, width(), line), Qt::AlignCenter, words);
    };
    write(box.top() - line - 12, qtTrId("IDD_REGION_HOW_TO_DRAG"));
    write(box.center().y() + 10, qtTrId("IDD_REGION_HOW_TO_ACCEPT"));
}
