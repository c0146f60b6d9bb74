// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_in_grab.h"

#include "app/app_delegate.h"

#include <QMainWindow>
#include <QScreen>

grab_units::Screen screenOnDesktop(const QScreen &screen) {
    const QRect frame = screen.geometry();
    // The toolkit leaves a screen's origin in pixels and scales only what lies on the screen.
    return {.originX = static_cast<double>(frame.x()),
            .originY = static_cast<double>(frame.y()),
            .height = static_cast<double>(frame.height()),
            .ratio = screen.devicePixelRatio()};
}

namespace {

/// A grab's size, whether and from which pixel on it is halved.
struct Grab {
    QSize pixels;
    std::optional<QPoint> halvedFrom;
};

QRect regionIn(const Grab &grab, const RegionFields &fields) {
    grab_units::Screen screen{.height = static_cast<double>(grab.pixels.height())};
    if (fields.screenOfRegion())
        screen = *fields.screenOfRegion();
    double unitsPerPixel = 1;
    QSize size = grab.pixels;
    if (grab.halvedFrom) {
        unitsPerPixel = 0.5;
        screen.originX -= grab.halvedFrom->x();
        screen.originY -= grab.halvedFrom->y();
        size /= 2;
    }
    const QRectF region = fields.rect_Screen_Region();
    const grab_units::Units units =
        grab_units::fromPoints({region.x(), region.y(), region.width(), region.height()}, screen,
                               unitsPerPixel, size.width(), size.height());
    return {units.x, units.y, units.width, units.height};
}

/// The latest grab.
Grab latest(const CaptureFields &capture) {
    if (capture.grabBeforeHalving().isEmpty())
        return {capture.imgScreenCapture().size(), {}};
    return {capture.grabBeforeHalving().size(), capture.halvedFrom()};
}

} // namespace

QRect regionInGrab(const AppDelegate &delegate) {
    return regionIn(latest(delegate.capture), delegate.region);
}

QRect regionInFrames(const AppDelegate &delegate) {
    return regionIn({latest(delegate.capture).pixels, originOfHalving(delegate)}, delegate.region);
}

std::optional<QPoint> originOfHalving(const AppDelegate &delegate) {
    const RegionFields &fields = delegate.region;
    std::optional<grab_units::Screen> recorded;
    if (fields.i_Type_Screen_Capture() == CAPTURE_REGION)
        recorded = fields.screenOfRegion();
    else if (const QScreen *screen = delegate.shell.window()->screen())
        recorded = screenOnDesktop(*screen);
    if (!recorded || !grab_units::isHalved(recorded->ratio))
        return {};
    return QPoint(static_cast<int>(recorded->originX) & 1, static_cast<int>(recorded->originY) & 1);
}

std::optional<QRect> partOfGrabInUse(const AppDelegate &delegate) {
    const CaptureFields &capture = delegate.capture;
    if (delegate.region.i_Type_Screen_Capture() != CAPTURE_REGION ||
        capture.imgScreenCapture().isEmpty())
        return {};
    const QRect region = regionInFrames(delegate);
    const std::optional<QPoint> halvedFrom = originOfHalving(delegate);
    if (!halvedFrom)
        return region;
    // Halving mixes pixels across the region's edges.
    constexpr int mixed = 4; // pixels
    return QRect(region.topLeft() * 2 + *halvedFrom, region.size() * 2)
        .adjusted(-mixed, -mixed, mixed, mixed);
}
