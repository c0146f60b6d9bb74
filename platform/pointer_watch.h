// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>

#include <cstdint>
#include <optional>

/// The mouse pointer as it stands on the screen.
struct Pointer {
    /// Where its hot spot is, in pixels of the desktop, upper left origin.
    QPoint place;
    /// What it looks like, in Format_ARGB32_Premultiplied. As long as it looks the same the picture
    /// is the same as well (`QImage::cacheKey`).
    QImage shape;
    /// The pixel of `shape` that is at `place`.
    QPoint hotSpot;
    /// The window that it is over, by its number in the window server's list; 0 for none.
    std::uint32_t window = 0;
};

/// Follows the pointer for as long as it exists; whoever needs no pointer has none of these. All
/// calls come from the main thread.
class PointerWatch {
public:
    virtual ~PointerWatch() = default;

    /// Where it is at this moment and what it looks like; none while it is hidden or elsewhere.
    virtual std::optional<Pointer> now() = 0;
};
