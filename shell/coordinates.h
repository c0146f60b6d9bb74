// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>

#include <algorithm>
#include <cmath>

class QScreen;

/// Every coordinate space of the program, and the conversions between them; docs/coordinates.md
/// shows them side by side.
///
/// - Points from the lower left: y grows upwards. The region counts from the lower left corner of
///   the screen on which it was chosen, `frame_Screen` from that of the primary screen, handles and
///   fitted pictures from that of their view. The established fields and rules use these.
/// - View: the toolkit's own points, from a widget's upper left corner, y downwards. Painting and
///   pointer events use these.
/// - Desktop pixels: the window server's, from the desktop's upper left corner, y downwards.
/// Windows
///   and grabs are measured in these.
/// - A screen's own: the toolkit's global points. It leaves a screen's origin in desktop pixels and
///   scales only what is on the screen, so with several screens, or a fraction as scale, no single
///   factor leads from here to desktop pixels.
/// - Units of the grab: whole numbers from the grab's upper left corner, y downwards. One unit is a
///   desktop pixel, or two of them each way where the grab was halved.
namespace coordinates {

/// A length or a point counted from the other end: between lower left and upper left. `extent` is
/// the height of what is placed, 0 for a point, and `height` that of what it is placed in.
constexpr double flipped(double y, double extent, double height) { return height - y - extent; }

/// The screen on which a region was chosen.
struct Screen {
    /// Its upper left corner on the desktop, in pixels from the desktop's upper left corner.
    double originX = 0;
    double originY = 0;
    /// Its height in points.
    double height = 0;
    /// Pixels per point; any positive number.
    double ratio = 1;

    bool operator==(const Screen &) const = default;
};

/// A rectangle in points from the screen's lower left corner, y upwards; (x, y) is its lower left
/// corner.
struct Points {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Points &) const = default;
};

/// A rectangle in whole units of the grab from the grab's upper left corner, y downwards; (x, y) is
/// its upper left corner.
struct Units {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Units &) const = default;
};

/// Whether what is recorded on a screen is halved: two pixels for a point become one unit. The
/// screen's own ratio decides, whatever else the desktop consists of.
inline bool isHalved(double ratio) { return ratio == 2.0; }

/// Where `region` is in a grab that has `unitsPerPixel` units for one pixel of the desktop (1, or
/// a half where a grab of double density was halved). Each edge goes to the nearest whole unit, so
/// that neighbouring regions stay neighbours. A screen's size in points is rounded, so that its
/// last unit may be one that the grab, `grabWidth` by `grabHeight`, does not have: that one is left
/// out. At least one unit wide and high, because there is no picture of nothing.
inline Units fromPoints(const Points &region, const Screen &screen, double unitsPerPixel,
                        int grabWidth, int grabHeight) {
    const auto unit = [](double exact, int end) {
        const double nearest = std::floor(exact + 0.5);
        return nearest == end + 1.0 ? end : nearest;
    };
    const auto horizontal = [&](double x) {
        return unit((screen.originX + x * screen.ratio) * unitsPerPixel, grabWidth);
    };
    const auto vertical = [&](double y) {
        const double fromTop = flipped(y, 0, screen.height);
        return unit((screen.originY + fromTop * screen.ratio) * unitsPerPixel, grabHeight);
    };
    const double left = horizontal(region.x);
    const double top = vertical(region.y + region.height);
    const double width = horizontal(region.x + region.width) - left;
    const double height = vertical(region.y) - top;
    return {static_cast<int>(left), static_cast<int>(top), std::max(1, static_cast<int>(width)),
            std::max(1, static_cast<int>(height))};
}

/// The other way: the region, in whole points, that is nearest to these units; exactly it where a
/// point is a whole number of them.
inline Points toPoints(const Units &units, const Screen &screen, double unitsPerPixel) {
    const auto point = [&](int unit, double origin) {
        return std::round((unit / unitsPerPixel - origin) / screen.ratio);
    };
    const double left = point(units.x, screen.originX);
    const double right = point(units.x + units.width, screen.originX);
    const double top = point(units.y, screen.originY);
    const double bottom = point(units.y + units.height, screen.originY);
    return {left, flipped(bottom, 0, screen.height), right - left, bottom - top};
}

/// A screen as the conversion into units of the grab sees it.
Screen screenOnDesktop(const QScreen &screen);

/// The screen's frame in points from the primary screen's lower left corner; the zero rectangle
/// without a screen. `y()` is the lower edge.
QRectF lowerLeftFrame(const QScreen *screen);

/// An area of a screen in desktop pixels, a little more rather than less. `area` is in the screen's
/// own points, `screenOrigin` is the screen's upper left corner and `ratio` its pixels per point.
QRect onDesktop(const QRectF &area, QPointF screenOrigin, double ratio);

} // namespace coordinates
