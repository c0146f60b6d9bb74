// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/strip_look.h"

#include "platform/image/image_scaler.h"
#include "shell/contrast.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace strip_look {

namespace {

const QColor shade(0, 0, 0, 165);
const QColor hatch(240, 240, 240, 150);
constexpr int selectionOpacity = 150; // of 255: what is beneath stays visible
constexpr double edge = 1;            // points, as everything below
constexpr double keptLine = 2;
constexpr double hatchLine = 1.5;
constexpr double hatchStep = 8;
constexpr double gripRounding = 3;
constexpr double ridgeLine = 1.5;
constexpr double ridgeGap = 1.5;   // from the middle of a grip to either ridge
constexpr double ridgeShare = 0.3; // of the grip's height
constexpr double knobTip = 0.45;   // share of the knob's height that is its tip

/// A line of this width just within `area`.
void drawWithin(QPainter &painter, const QRectF &area, double width, const QColor &colour) {
    if (area.width() <= 0)
        return;
    painter.fillRect(QRectF(area.left(), area.top(), area.width(), width), colour);
    painter.fillRect(QRectF(area.left(), area.bottom() - width, area.width(), width), colour);
    painter.fillRect(QRectF(area.left(), area.top(), width, area.height()), colour);
    painter.fillRect(QRectF(area.right() - width, area.top(), width, area.height()), colour);
}

QRectF grown(const QRectF &area, double by) { return area.adjusted(-by, -by, by, by); }

} // namespace

void drawFilm(QPainter &painter, const QRectF &film, const std::vector<QImage> &pictures,
              const QPalette &palette) {
    const QColor blank = palette.color(QPalette::Mid);
    painter.fillRect(film, blank);
    const double share =
        film.width() / static_cast<double>(std::max<std::size_t>(pictures.size(), 1));
    const double ratio = painter.device()->devicePixelRatioF();
    for (std::size_t place = 0; place < pictures.size(); ++place) {
        // Parts meet on whole pixels of the device, where what is drawn ends too.
        const auto edgeAt = [&](std::size_t left) {
            const QPointF corner(film.left() + static_cast<double>(left) * share, film.top());
            return ImageScaler::onGrid(corner, ratio).x();
        };
        const QRectF part(QPointF(edgeAt(place), film.top()),
                          QPointF(edgeAt(place + 1), film.bottom()));
        const QImage &picture = pictures[place];
        if (picture.isNull()) {
            drawWithin(painter, part, edge / 2, palette.color(QPalette::Dark));
            continue;
        }
        const QSizeF size = picture.deviceIndependentSize();
        const QPointF corner = ImageScaler::onGrid(
            part.center() - QPointF(size.width() / 2, size.height() / 2), ratio);
        painter.save();
        painter.setClipRect(part);
        if (size.width() < part.width() || size.height() < part.height())
            painter.fillRect(part, Qt::black);
        painter.drawImage(corner, picture);
        painter.restore();
    }
    drawWithin(painter, film, edge, darkEdge);
}

void drawLeftOut(QPainter &painter, const QRectF &part) { painter.fillRect(part, shade); }

void drawDeleted(QPainter &painter, const QRectF &part) {
    painter.save();
    painter.fillRect(part, shade);
    painter.setClipRect(part);
    painter.setRenderHint(QPainter::Antialiasing);
    // From multiples of the step: the lines of neighbours meet, and stay where they are.
    const double begin = std::floor((part.left() - part.height()) / hatchStep) * hatchStep;
    for (const auto &[colour, shift] : {std::pair(darkEdge, hatchLine), {hatch, 0.0}}) {
        painter.setPen(QPen(colour, hatchLine));
        for (double x = begin; x < part.right(); x += hatchStep)
            painter.drawLine(QPointF(x + shift, part.bottom()),
                             QPointF(x + shift + part.height(), part.top()));
    }
    painter.restore();
}

void drawSelection(QPainter &painter, const QRectF &part, const QPalette &palette) {
    QColor colour = palette.color(QPalette::Highlight);
    colour.setAlpha(selectionOpacity);
    painter.fillRect(part, colour);
    drawWithin(painter, grown(part, edge), edge, darkEdge);
    drawWithin(painter, part, edge, lightEdge);
}

void drawKept(QPainter &painter, const QRectF &part, const QPalette &palette) {
    drawWithin(painter, grown(part, edge), edge, darkEdge);
    drawWithin(painter, part, keptLine, palette.color(QPalette::Highlight));
    drawWithin(painter, grown(part, -keptLine), edge, lightEdge);
}

void drawGrip(QPainter &painter, const QRectF &grip, const QPalette &palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(darkEdge, edge));
    painter.setBrush(lightEdge);
    painter.drawRoundedRect(grown(grip, -edge / 2), gripRounding, gripRounding);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Highlight));
    painter.drawRoundedRect(grown(grip, -2 * edge), gripRounding - edge, gripRounding - edge);
    const double half = grip.height() * ridgeShare / 2;
    const QPointF middle = grip.center();
    const QColor accent = palette.color(QPalette::Highlight);
    const bool isLight = contrast(lightEdge, accent) >= contrast(darkEdge, accent);
    painter.setPen(QPen(isLight ? lightEdge : darkEdge, ridgeLine));
    for (const double x : {middle.x() - ridgeGap, middle.x() + ridgeGap})
        painter.drawLine(QPointF(x, middle.y() - half), QPointF(x, middle.y() + half));
    painter.restore();
}

void drawPlayhead(QPainter &painter, const QRectF &line, const QRectF &knob) {
    painter.fillRect(line.adjusted(-edge, 0, edge, 0), darkEdge);
    painter.fillRect(line, lightEdge);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(darkEdge, edge));
    painter.setBrush(lightEdge);
    const QRectF shape = grown(knob, -edge / 2);
    const double shoulder = shape.bottom() - knobTip * shape.height();
    const double tip = std::clamp(line.center().x(), shape.left(), shape.right());
    painter.drawPolygon(QPolygonF({shape.topLeft(),
                                   shape.topRight(),
                                   {shape.right(), shoulder},
                                   {tip, shape.bottom()},
                                   {shape.left(), shoulder}}));
    painter.restore();
}

} // namespace strip_look
