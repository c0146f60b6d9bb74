// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

/// Where a frame lies on the desktop.
struct FramePlace {
    /// The pixel of the desktop that is, or becomes part of, the frame's upper left one.
    QPoint origin;
    /// How many pixels of the desktop become one of the frame's, each way: 1, or 2 where what is
    /// recorded is halved.
    int density = 1;

    /// The pixel of the frame that a pixel of the desktop is in; it may be outside.
    QPoint inFrame(QPoint pixel) const {
        const auto half = [](int from) { return from >= 0 ? from / 2 : (from - 1) / 2; };
        const QPoint from = pixel - origin;
        return density == 1 ? from : QPoint(half(from.x()), half(from.y()));
    }

    bool operator==(const FramePlace &) const = default;
};
