// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/view_transparent_region.h"

#include "region/controller_squares.h"
#include "region/region_chooser.h"

#include <QPainter>

#include <algorithm>

namespace {

using region_geometry::Point;
using region_geometry::Region;
using region_geometry::Squares;
using region_geometry::squareSide;

// Two tones: on any ground one of them is seen.
const QColor lightColor(255, 255, 255);
const QColor darkColor(32, 32, 32);
const QColor dimColor(0, 0, 0, 128); // of what is not recorded
const QColor cornerColor(0, 255, 0);
const QColor middleColor(255, 0, 0);
const QColor tickColor(255, 255, 255);
constexpr double lineWidth = 1.5; // points, of each tone
constexpr double edgeWidth = 1.0; // points, of each tone of a square
constexpr double tickWidth = 1.8; // points
constexpr double tickInset = 3.5; // points, from the middle square's edge
constexpr double pickedWidth = 4; // points, of the frame around a window

int wholePixels(double points, double ratio) { return std::max(1, qRound(points * ratio)); }

QRect grown(const QRect &box, int by) { return box.adjusted(-by, -by, by, by); }

void fill(QPainter &painter, const QRegion &region, const QColor &color) {
    for (const QRect &box : region)
        painter.fillRect(box, color);
}

void drawSquare(QPainter &painter, const QRect &square, const QColor &color, int edge) {
    painter.fillRect(square, darkColor);
    painter.fillRect(grown(square, -edge), lightColor);
    painter.fillRect(grown(square, -2 * edge), color);
}

} // namespace

QRegion region_drawing::Pieces::shape() const {
    QRegion whole = light + dark + accent;
    for (const QRect &square : squares)
        whole += square;
    return whole;
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
    Pieces result;
    result.ratio = ratio;
    result.inside = inPixels(QRectF(region.x, region.y, region.width, region.height));
    // Around what is recorded, not in it.
    const int line = wholePixels(lineWidth, ratio);
    const QRect lit = grown(result.inside, line);
    result.light = QRegion(lit) - result.inside;
    result.dark = QRegion(grown(lit, line)) - lit;
    for (std::size_t index = 0; index < squares.size(); ++index) {
        const Point &corner = squares[index];
        result.squares[index] = inPixels(QRectF(corner.x, corner.y, squareSide, squareSide));
    }
    return result;
}

region_drawing::Pieces region_drawing::piecesOfWindow(const QRect &window, double ratio) {
    Pieces result;
    result.ratio = ratio;
    result.inside = window;
    const int line = wholePixels(lineWidth, ratio);
    const QRect within = grown(window, -wholePixels(pickedWidth, ratio));
    result.dark = QRegion(grown(window, line)) - window;
    result.accent = QRegion(window) - within;
    result.light = QRegion(within) - grown(within, -line);
    return result;
}

void region_drawing::draw(QPainter &painter, const Pieces &pieces, const QColor &accent) {
    painter.save();
    painter.scale(1 / pieces.ratio, 1 / pieces.ratio);
    fill(painter, pieces.dark, darkColor);
    fill(painter, pieces.light, lightColor);
    fill(painter, pieces.accent, accent);
    const QRect middle = pieces.squares[region_geometry::middle];
    // Rounded down: what has the colour is the larger part of a square.
    const int edge = std::max(1, static_cast<int>(edgeWidth * pieces.ratio));
    for (const QRect &square : pieces.squares)
        if (!square.isEmpty())
            drawSquare(painter, square, square == middle ? middleColor : cornerColor, edge);
    if (!middle.isEmpty()) {
        // Above a corner where they meet: it is the one that a click accepts.
        drawSquare(painter, middle, middleColor, edge);
        const double inset = tickInset * pieces.ratio;
        const QRectF box = QRectF(middle).adjusted(inset, inset, -inset, -inset);
        const QPointF tick[] = {box.topLeft() + QPointF(0, 0.55 * box.height()),
                                box.topLeft() + QPointF(0.35 * box.width(), 0.9 * box.height()),
                                box.topRight() + QPointF(0, 0.1 * box.height())};
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(
            QPen(tickColor, tickWidth * pieces.ratio, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(tick, std::size(tick));
    }
    painter.restore();
}

void View_Transparent_Region::paintEvent(QPaintEvent *) {
    chooser_.storeRegion();
    const QRect stored = chooser_.region.rect_Screen_Region().toRect();
    const Region region{stored.x(), stored.y(), stored.width(), stored.height()};
    const region_drawing::Pieces drawn = pieces(controller_squares::read(chooser_.region), region);
    QPainter painter(this);
    // A window that is shaped to what is drawn has nothing to dim.
    if (!shaped_ && !drawn.inside.isEmpty()) {
        painter.save();
        painter.scale(1 / drawn.ratio, 1 / drawn.ratio);
        const QRect whole(QPoint(), (QSizeF(size()) * drawn.ratio).toSize());
        fill(painter, QRegion(whole) - drawn.inside, dimColor);
        painter.restore();
    }
    region_drawing::draw(painter, drawn, palette().color(QPalette::Highlight));
}

void View_Transparent_Region::setPicking(bool picking, const std::optional<QRect> &picked) {
    picking_ = picking;
    picked_ = picked;
    update();
}

QPoint View_Transparent_Region::screenInWindow() const {
    return window()->isFullScreen() ? QPoint() : screen_.topLeft() - window()->geometry().topLeft();
}

region_drawing::Pieces View_Transparent_Region::pieces(const Squares &squares,
                                                       const Region &region) const {
    const double ratio = devicePixelRatioF();
    if (!picking_)
        return region_drawing::pieces(squares, region, screen_.height(), ratio, screenInWindow());
    if (!picked_) {
        region_drawing::Pieces nothing;
        nothing.ratio = ratio;
        return nothing;
    }
    const QRectF inWindow = picked_->translated(screenInWindow());
    return region_drawing::piecesOfWindow(
        QRectF(inWindow.topLeft() * ratio, inWindow.size() * ratio).toRect(), ratio);
}
