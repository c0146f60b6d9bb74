// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/input_watch.h"
#include "record/marks/frame_place.h"

#include <QColor>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

#include <chrono>
#include <optional>
#include <span>
#include <vector>

/// Clicks, and the circles by which a frame shows them. Values only: nobody here looks at a clock.

using MarkTime = std::chrono::steady_clock::time_point;

/// A mouse button that went down, and perhaps up again.
struct Click {
    int button = 0;
    QPoint place; ///< where it went down, in pixels of the desktop
    MarkTime down;
    std::optional<MarkTime> up;

    bool operator==(const Click &) const = default;
};

/// How long the ring of a click can be seen.
inline constexpr std::chrono::milliseconds ringLasts{400};

/// Takes in what a button did: a click begins, or one that is held ends.
void take(std::vector<Click> &clicks, const Timed<ButtonChange> &change);

/// Forgets the clicks of which nothing can be seen any more.
void forgetPast(std::vector<Click> &clicks, MarkTime now);

/// A circle in a frame's pixels, from its upper left corner.
struct Disc {
    QPointF centre;
    double radius = 0;
    double stroke =
        0; ///< how broad its line is, drawn to both sides of the radius; 0: it is filled
    QColor colour;

    /// The pixels that it may touch.
    QRect bounds() const;

    bool operator==(const Disc &) const = default;
};

/// What is to be seen of the clicks at `now`: of each a ring that grows and fades, where the button
/// went down, and while it is held a filled disc where the pointer is (`hand`, in pixels of the
/// desktop; where it went down when that is not known). A colour for each button. None is wider
/// than a twentieth of the frame.
std::vector<Disc> discsOf(std::span<const Click> clicks, MarkTime now, std::optional<QPoint> hand,
                          const FramePlace &place, QSize frame);
