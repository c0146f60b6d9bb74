// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/tile_comparison.h"

#include "platform/image/tile.h"

#include <algorithm>
#include <cstring>

namespace x11 {

namespace {

bool differs(const std::uint32_t *a, const std::uint32_t *b, std::ptrdiff_t stride,
             const QRect &place) {
    const auto bytes = static_cast<std::size_t>(place.width()) * sizeof *a;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const std::ptrdiff_t at = y * stride + place.x();
        if (std::memcmp(a + at, b + at, bytes) != 0)
            return true;
    }
    return false;
}

int endOfTile(int at) { return at - at % Tile::side + Tile::side; }

} // namespace

QRegion differingTiles(const std::uint32_t *a, const std::uint32_t *b, QSize size,
                       const QRegion &where) {
    QRegion different;
    const std::ptrdiff_t stride = size.width();
    for (const QRect &piece : where.intersected(QRect(QPoint(), size))) {
        for (int y = piece.top(), below = 0; y <= piece.bottom(); y = below) {
            below = std::min(endOfTile(y), piece.bottom() + 1);
            // Neighbours become one rectangle: regions are slow to put together.
            QRect run;
            for (int x = piece.left(), right = 0; x <= piece.right(); x = right) {
                right = std::min(endOfTile(x), piece.right() + 1);
                const QRect place(x, y, right - x, below - y);
                if (differs(a, b, stride, place)) {
                    run |= place;
                    continue;
                }
                different += run;
                run = QRect();
            }
            different += run;
        }
    }
    return different;
}

} // namespace x11
