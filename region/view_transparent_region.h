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

/// How the region selection looks: the outline, four corner squares, the middle square with its
/// cross, and nothing else. Pure drawing, shared by the overlay and the picture that explains it.
namespace region_drawing {

/// Draws region and squares, in points from the lower left corner of an area of the given height.
void draw(QPainter &painter, const region_geometry::Squares &squares,
          const region_geometry::Region &region, double areaHeight);

/// The same for a window that shows nothing but its shape, in pixels and without blended edges.
struct Pieces {
    QRegion outline;
    std::array<QRect, 5> squares; // by index
    QRegion picked;               // a frame around a window

    /// All of it: what the window is shaped to.
    QRegion shape() const;
};

/// The pieces on a screen `areaHeight` points high with `ratio` pixels per point; in pixels from
/// the upper left corner of a window in which the screen's upper left corner is at `origin`
/// (points).
Pieces pieces(const region_geometry::Squares &squares, const region_geometry::Region &region,
              double areaHeight, double ratio, QPoint origin);

} // namespace region_drawing

/// The overlay's view. It fills the overlay's window, draws the desk's squares, and stores
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

    /// Frames what a press would pick, in points of the screen from its upper left corner; none
    /// without it.
    void setPicked(const std::optional<QRect> &picked);

    /// What is then drawn, in pixels from the window's upper left corner.
    region_drawing::Pieces pieces(const region_geometry::Squares &squares,
                                  const region_geometry::Region &region) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPieces(QPainter &painter, const region_geometry::Squares &squares,
                     const region_geometry::Region &region) const;
    void paintPicked(QPainter &painter) const;
    /// The screen's upper left corner, in points from the window's.
    QPoint screenInWindow() const;

    RegionChooser &chooser_;
    QRect screen_;
    bool shaped_ = false;
    std::optional<QRect> picked_;
};
