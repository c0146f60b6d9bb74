// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/coordinates.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

/// Where the region is in what is grabbed. A value that follows from other values: nothing is
/// stored here and no window is asked.
namespace region_place {

/// A grab of the desktop, as far as it decides where a region is in it.
struct Grab {
    QSize pixels; ///< Of the desktop, before any halving; empty before the first grab.
    /// If it was halved: the pixel that became part of the half's first one, 0 or 1 in either
    /// direction.
    std::optional<QPoint> halvedFrom = {};

    bool operator==(const Grab &) const = default;
};

/// Everything that decides it.
struct Inputs {
    bool regionIsRecorded = false; ///< Not the whole screen.
    coordinates::Points region;
    /// The screen on which the region was chosen; none before the first was.
    std::optional<coordinates::Screen> screenOfRegion = {};
    /// The screen of the main window.
    std::optional<coordinates::Screen> screenOfWindow = {};
    Grab grab;

    bool operator==(const Inputs &) const = default;
};

struct Place {
    /// In whole units of that grab, upper left origin: what is cut out of it, and so the size of a
    /// frame.
    QRect inGrab;
    /// The same in the grabs to come: that grab may be of another density while the region is still
    /// being chosen.
    QRect inFrames;
    /// If the next grab is to be halved, because the screen that is recorded has two pixels for a
    /// point: where halving begins, so that the pixels of one point on that screen become one.
    std::optional<QPoint> halvedFrom;
    /// The part of the desktop that the next frame needs of a grab, in the desktop's pixels; all of
    /// it when none.
    std::optional<QRect> partInUse;
};

Place placeOf(const Inputs &inputs);

/// The region that is there in the grabs to come, see `Place::inFrames`; the nearest one in whole
/// points.
coordinates::Points regionOf(const QRect &inFrames, const Inputs &inputs);

} // namespace region_place
