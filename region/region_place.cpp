// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_place.h"

#include <QScreen>

namespace region_place {

namespace {

QRect regionIn(const Grab &grab, const Inputs &inputs) {
    grab_units::Screen screen{.height = static_cast<double>(grab.pixels.height())};
    if (inputs.screenOfRegion)
        screen = *inputs.screenOfRegion;
    double unitsPerPixel = 1;
    QSize size = grab.pixels;
    if (grab.halvedFrom) {
        unitsPerPixel = 0.5;
        screen.originX -= grab.halvedFrom->x();
        screen.originY -= grab.halvedFrom->y();
        size /= 2;
    }
    const grab_units::Units units =
        grab_units::fromPoints(inputs.region, screen, unitsPerPixel, size.width(), size.height());
    return {units.x, units.y, units.width, units.height};
}

std::optional<QPoint> originOfHalving(const Inputs &inputs) {
    const auto &recorded = inputs.regionIsRecorded ? inputs.screenOfRegion : inputs.screenOfWindow;
    if (!recorded || !grab_units::isHalved(recorded->ratio))
        return {};
    return QPoint(static_cast<int>(recorded->originX) & 1, static_cast<int>(recorded->originY) & 1);
}

std::optional<QRect> partInUse(const Inputs &inputs, const Place &place) {
    if (!inputs.regionIsRecorded || inputs.grab.pixels.isEmpty())
        return {};
    if (!place.halvedFrom)
        return place.inFrames;
    // Halving mixes pixels across the region's edges.
    constexpr int mixed = 4; // pixels
    return QRect(place.inFrames.topLeft() * 2 + *place.halvedFrom, place.inFrames.size() * 2)
        .adjusted(-mixed, -mixed, mixed, mixed);
}

} // namespace

Place placeOf(const Inputs &inputs) {
    Place place;
    place.halvedFrom = originOfHalving(inputs);
    place.inGrab = regionIn(inputs.grab, inputs);
    place.inFrames = regionIn({inputs.grab.pixels, place.halvedFrom}, inputs);
    place.partInUse = partInUse(inputs, place);
    return place;
}

grab_units::Screen screenOnDesktop(const QScreen &screen) {
    const QRect frame = screen.geometry();
    // The toolkit leaves a screen's origin in pixels and scales only what lies on the screen.
    return {.originX = static_cast<double>(frame.x()),
            .originY = static_cast<double>(frame.y()),
            .height = static_cast<double>(frame.height()),
            .ratio = screen.devicePixelRatio()};
}

} // namespace region_place
