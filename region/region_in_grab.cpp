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
    const QRectF region = delegate.region.rect_Screen_Region();
    const bool halved = !delegate.capture.grabBeforeHalving().isEmpty();
    const grab_units::Units units =
        grab_units::fromPoints({region.x(), region.y(), region.width(), region.height()},
                               delegate.region.screenOfRegion(), halved ? 0.5 : 1.0);
    return {units.x, units.y, units.width, units.height};
}
