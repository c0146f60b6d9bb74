// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_place.h"

namespace region_place {

namespace {

double unitsPerPixel(const Grab &grab) { return grab.halvedFrom ? 0.5 : 1; }

coordinates::Screen screenFor(const Grab &grab, const Inputs &inputs) {
    coordinates::Screen screen{.height = static_cast<double>(grab.pixels.height())};
    if (inputs.screenOfRegion)
        screen = *inputs.screenOfRegion;
    if (grab.halvedFrom) {
        screen.originX -= grab.halvedFrom->x();
        screen.originY -= grab.halvedFrom->y();
    }
    return screen;
}

QRect regionIn(const Grab &grab, const Inputs &inputs) {
    const QSize size = grab.halvedFrom ? grab.pixels / 2 : grab.pixels;
    const coordinates::Units units = coordinates::fromPoints(
        inputs.region, screenFor(grab, inputs), unitsPerPixel(grab), size.width(), size.height());
    return {units.x, units.y, units.width, units.height};
}

std::optional<QPoint> originOfHalving(const Inputs &inputs) {
    const auto &recorded = inputs.regionIsRecorded ? inputs.screenOfRegion : inputs.screenOfWindow;
    if (!recorded || !coordinates::isHalved(recorded->ratio))
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

coordinates::Points regionOf(const QRect &inFrames, const Inputs &inputs) {
    const Grab grab{inputs.grab.pixels, originOfHalving(inputs)};
    return coordinates::toPoints({inFrames.x(), inFrames.y(), inFrames.width(), inFrames.height()},
                                 screenFor(grab, inputs), unitsPerPixel(grab));
}

} // namespace region_place
