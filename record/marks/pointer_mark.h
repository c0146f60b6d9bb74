// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pointer_watch.h"
#include "record/marks/frame_place.h"

#include <QImage>
#include <QPoint>
#include <QRect>

/// The pointer as a frame shows it, in the frame's pixels from its upper left corner.
struct PointerMark {
    QPoint corner; ///< of `shape`
    QImage shape;  ///< Format_ARGB32_Premultiplied

    QRect bounds() const { return {corner, shape.size()}; }
};

/// The pointer's mark. In a halved frame each of its pixels is the mean of the four that a halved
/// screen would show there.
PointerMark pointerMark(const Pointer &pointer, const FramePlace &place);
