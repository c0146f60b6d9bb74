// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "region/region_geometry.h"

#include <QRegion>
#include <QWidget>

#include <array>
#include <optional>

class QPainter;
class RegionChooser;

/// How the region selection looks: a line around the rectangle, four corner squares, the middle
/// square with its cross, and nothing else; or the frame around a window that can be picked. Pure
/// drawing, shared by the overlay and the picture that explains it.
namespace region_drawing {

/// What is drawn, in pixels and without blended edges: for a window that shows nothing but its
/// shape, too.
struct Pieces {
    double ratio = 1; ///< pixels per point
    QRect inside;     ///< What is recorded.
    QRegion light;
    QRegion dark;
    QRegion accent;                 ///< In the palette's own colour.
    std::array<QRect, 5> squares{}; ///< By index; empty without them.

    /// All of it: what the window is shaped to.
    QRegion shape() const;
};

/// The pieces on a screen `areaHeight` points high with `ratio` pixels per point; in pixels from
/// the upper left corner of a window in which the screen's upper left corner is at `origin`
/// (points).
Pieces pieces(const region_geometry::Squares &squares, const region_geometry::Region &region,
              double areaHeight, double ratio, QPoint origin);

/// The frame around a window, whose place is in pixels from the upper left corner of the window
/// that it is drawn in.
Pieces piecesOfWindow(const QRect &window, double ratio);

/// Draws them, with a painter in points.
void draw(QPainter &painter, const Pieces &pieces, const QColor &accent);

} // namespace region_drawing

/// The overlay's view. It fills the overlay's window, draws the desk's squares, dims what is not
/// recorded where the desktop blends windows, and stores
/// the region that they stand for with every drawing, so that what is accepted is what was seen
/// last. Pointer events go to the window.
class View_Transparent_Region : public QWidget {
    Q_OBJECT

public:
    /// Draws the part of `screen` (its frame in points, upper left origin) that the window covers.
    /// `chooser` is borrowed and outlives it.
    View_Transparent_Region(QWidget *parent, const QRect &screen, RegionChooser &chooser)
        : QWidget(parent), chooser_(chooser), screen_(screen) {}

    /// For a desktop that does not blend windows, where the window is shaped to the drawing.
    void setShaped(bool shaped) { shaped_ = shaped; }

    /// Whether a window is being picked, and what a press would take, in points of the screen from
    /// its upper left corner: that is framed then, and not the region.
    void setPicking(bool picking, const std::optional<QRect> &picked);

    /// What is drawn, in pixels from the window's upper left corner.
    region_drawing::Pieces pieces(const region_geometry::Squares &squares,
                                  const region_geometry::Region &region) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// The screen's upper left corner, in points from the window's.
    QPoint screenInWindow() const;

    RegionChooser &chooser_;
    QRect screen_;
    bool shaped_ = false;
    bool picking_ = false;
    std::optional<QRect> picked_;
};
