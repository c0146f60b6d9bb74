// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/view_transparent_region.h"

#include "region/controller_squares.h"
#include "region/region_chooser.h"

#include <QPainter>

namespace {

using region_geometry::Point;
using region_geometry::Region;
using region_geometry::Squares;
using region_geometry::squareSide;

const QColor outlineColor(0, 0, 255);
const QColor cornerColor(0, 255, 0);
const QColor middleColor(255, 0, 0);
const QColor crossColor(0, 0, 0);
constexpr double outlineWidth = 3.0; // points
constexpr double crossWidth = 1.0;   // points
constexpr int pickedFrame = 4;       // points
constexpr int pickedOpacity = 50;    // of 255, of what is inside
constexpr double crossInset = 2.0;   // points from the middle square's edge

QPen pen(const QColor &color, double width) {
    return QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
}

QRectF squareRect(const Point &corner) { return {corner.x, corner.y, squareSide, squareSide}; }

/// The middle square's cross, for a painter with `scale` units for a point.
void drawCross(QPainter &painter, const QRectF &square, double scale) {
    const double inset = crossInset * scale;
    const QRectF cross = square.adjusted(inset, inset, -inset, -inset);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen(crossColor, crossWidth * scale));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

} // namespace

void region_drawing::draw(QPainter &painter, const Squares &squares, const Region &region,
                          double areaHeight) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0, areaHeight);
    painter.scale(1, -1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen(outlineColor, outlineWidth));
    painter.drawRect(QRectF(region.x, region.y, region.width, region.height));
    for (std::size_t index = 0; index < squares.size(); ++index) {
        if (region_geometry::isCorner(static_cast<int>(index)))
            painter.fillRect(squareRect(squares[index]), cornerColor);
    }
    const QRectF middle = squareRect(squares[region_geometry::middle]);
    painter.fillRect(middle, middleColor);
    drawCross(painter, middle, 1);
    painter.restore();
}

QRegion region_drawing::Pieces::shape() const {
    QRegion whole = outline;
    for (const QRect &square : squares)
        whole += square;
    return whole + picked;
}

region_drawing::Pieces region_drawing::pieces(const Squares &squares, const Region &region,
                                              double areaHeight, double ratio, QPoint origin) {
    // Edges go to the nearest pixel each, as the eye expects of lines that meet.
    const auto inPixels = [&](const QRectF &box) {
        const auto x = [&](double points) { return qRound((origin.x() + points) * ratio); };
        const auto y = [&](double points) {
            return qRound((origin.y() + areaHeight - points) * ratio);
        };
        const QPoint topLeft(x(box.left()), y(box.bottom()));
        const QPoint end(x(box.right()), y(box.top()));
        return QRect(topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y()));
    };
    constexpr double half = outlineWidth / 2;
    const QRectF box(region.x, region.y, region.width, region.height);
    Pieces result;
    result.outline = inPixels(box.adjusted(-half, -half, half, half));
    const QRectF inside = box.adjusted(half, half, -half, -half);
    if (inside.width() > 0 && inside.height() > 0)
        result.outline -= inPixels(inside);
    for (std::size_t index = 0; index < squares.size(); ++index)
        result.squares[index] = inPixels(squareRect(squares[index]));
    return result;
}

void View_Transparent_Region::paintEvent(QPaintEvent *) {
    chooser_.storeRegion();
    const RegionFields &fields = chooser_.region;
    const QRect stored = fields.rect_Screen_Region().toRect();
    const Region region{stored.x(), stored.y(), stored.width(), stored.height()};
    const Squares squares = controller_squares::read(fields);
    QPainter painter(this);
    if (shaped_)
        return paintPieces(painter, squares, region);
    painter.translate(screenInWindow());
    region_drawing::draw(painter, squares, region, screen_.height());
    paintPicked(painter);
}

void View_Transparent_Region::setPicked(const std::optional<QRect> &picked) {
    picked_ = picked;
    update();
}

void View_Transparent_Region::paintPicked(QPainter &painter) const {
    if (!picked_)
        return;
    QColor light = palette().color(QPalette::Highlight);
    painter.setPen(Qt::NoPen);
    constexpr int frame = pickedFrame;
    for (const QRect &side : QRegion(*picked_) - picked_->adjusted(frame, frame, -frame, -frame))
        painter.fillRect(side, light);
    light.setAlpha(pickedOpacity);
    painter.fillRect(*picked_, light);
}

QPoint View_Transparent_Region::screenInWindow() const {
    return window()->isFullScreen() ? QPoint() : screen_.topLeft() - window()->geometry().topLeft();
}

region_drawing::Pieces View_Transparent_Region::pieces(const Squares &squares,
                                                       const Region &region) const {
    const double ratio = devicePixelRatioF();
    region_drawing::Pieces drawn =
        region_drawing::pieces(squares, region, screen_.height(), ratio, screenInWindow());
    if (picked_) {
        const auto inPixels = [&](const QRect &box) {
            const QRectF inWindow = box.translated(screenInWindow());
            return QRectF(inWindow.topLeft() * ratio, inWindow.size() * ratio).toRect();
        };
        constexpr int frame = pickedFrame;
        drawn.picked =
            QRegion(inPixels(*picked_)) - inPixels(picked_->adjusted(frame, frame, -frame, -frame));
    }
    return drawn;
}

void View_Transparent_Region::paintPieces(QPainter &painter, const Squares &squares,
                                          const Region &region) const {
    const double ratio = devicePixelRatioF();
    const region_drawing::Pieces drawn = pieces(squares, region);
    painter.scale(1 / ratio, 1 / ratio);
    for (const QRect &box : drawn.outline)
        painter.fillRect(box, outlineColor);
    for (const QRect &box : drawn.picked)
        painter.fillRect(box, palette().color(QPalette::Highlight));
    for (std::size_t index = 0; index < squares.size(); ++index) {
        if (region_geometry::isCorner(static_cast<int>(index)))
            painter.fillRect(drawn.squares[index], cornerColor);
    }
    const QRectF middle = drawn.squares[region_geometry::middle];
    painter.fillRect(middle, middleColor);
    drawCross(painter, middle, ratio);
}
