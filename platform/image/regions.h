// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>

#include <utility>

/// The union of two regions of any number of rectangles.
///
/// Qt's own (6.4) may lose rectangles and give overlapping ones when the second region ends right
/// before the first one begins, in one row of rectangles, and their rectangles merge: it then puts
/// the second in front instead of uniting them. The other way round it is right.
inline QRegion united(const QRegion &a, const QRegion &b) {
    const auto beginning = [](const QRegion &region) {
        const QRect first = region.isEmpty() ? QRect() : *region.begin();
        return std::pair(first.top(), first.left());
    };
    return beginning(b) < beginning(a) ? b.united(a) : a.united(b);
}
