// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pointer_watch.h"

#include <QImage>
#include <QPoint>
#include <QRect>

/// Where a frame lies on the desktop.
struct FramePlace {
    /// The pixel of the desktop that is, or becomes part of, the frame's upper left one.
    QPoint origin;
    /// How many pixels of the desktop become one of the frame's, each way: 1, or 2 where what is
    /// recorded is halved.
    int density = 1;

    /// The pixel of the frame that a pixel of the desktop is in; it may be outside.
    QPoint inFrame(QPoint pixel) const;

    bool operator==(const FramePlace &) const = default;
};

/// The pointer as a frame shows it, in the frame's pixels from its upper left corner.
struct PointerMark {
    QPoint corner; ///< of `shape`
    QImage shape;  ///< Format_ARGB32_Premultiplied

    QRect bounds() const { return {corner, shape.size()}; }
};

/// The pointer's mark. In a halved frame each of its pixels is the mean of the four that a halved
/// screen would show there.
PointerMark pointerMark(const Pointer &pointer, const FramePlace &place);
