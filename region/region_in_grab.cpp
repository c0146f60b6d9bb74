// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_in_grab.h"

#include "app/app_delegate.h"

#include <QScreen>

grab_units::Screen screenOnDesktop(const QScreen &screen) {
    const QRect frame = screen.geometry();
    // The toolkit leaves a screen's origin in pixels and scales only what lies on the screen.
    return {.originX = static_cast<double>(frame.x()),
            .originY = static_cast<double>(frame.y()),
            .height = static_cast<double>(frame.height()),
            .ratio = screen.devicePixelRatio()};
}

QRect regionInGrab(const AppDelegate &delegate) {
    const CaptureFields &capture = delegate.capture;
    const QSize grab = capture.imgScreenCapture().size();
    const Image &whole = capture.grabBeforeHalving();
    double unitsPerPixel = 1;
    if (!whole.isEmpty())
        unitsPerPixel = static_cast<double>(grab.width()) / whole.width();
    grab_units::Screen screen{.height = static_cast<double>(grab.height())};
    if (delegate.region.screenOfRegion())
        screen = *delegate.region.screenOfRegion();
    else
        unitsPerPixel = 1;
    const QRectF region = delegate.region.rect_Screen_Region();
    const grab_units::Units units = grab_units::fromPoints(
        {region.x(), region.y(), region.width(), region.height()}, screen, unitsPerPixel);
    return {units.x, units.y, units.width, units.height};
}

std::optional<QRect> partOfGrabInUse(const AppDelegate &delegate) {
    const CaptureFields &capture = delegate.capture;
    if (delegate.region.i_Type_Screen_Capture() != CAPTURE_REGION ||
        capture.imgScreenCapture().isEmpty())
        return {};
    const QRect region = regionInGrab(delegate);
    const Image &whole = capture.grabBeforeHalving();
    if (whole.isEmpty())
        return region;
    // Halving mixes pixels across the region's edges.
    constexpr int mixed = 4; // pixels
    return QRect(region.topLeft() * 2, region.size() * 2).adjusted(-mixed, -mixed, mixed, mixed);
}
