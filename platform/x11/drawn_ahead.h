// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>

#include <chrono>
#include <cstdint>

namespace x11 {

/// What windows have drawn and a compositing manager has not shown yet. Taken from a window's own
/// picture at once, it would be ahead of the screen, and tear where it meets that.
class DrawnAhead {
public:
    /// `drawn` is what was drawn since the last call, in desktop coordinates; `isShown` whether the
    /// screen was drawn after all of it, `repaints` how often it was altogether. What of it, and of
    /// what was held back before, is on the screen by now: all that waited too long counts as such,
    /// since a compositing manager need not show what windows draw.
    QRegion shown(const QRegion &drawn, bool isShown, std::uint64_t repaints);

    bool isEmpty() const { return region_.isEmpty(); }

    void clear() { region_ = QRegion(); }

private:
    using Clock = std::chrono::steady_clock;

    QRegion region_;
    Clock::time_point since_;
    std::uint64_t repaints_ = 0;
};

} // namespace x11
