// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/tile_comparison.h"

#include "platform/image/tile.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint32_t everyBit = 0xffffffff;

// Without a branch for each word, so that many are compared at once.
bool differsInBits(const std::uint32_t *a, const std::uint32_t *b, int count, std::uint32_t mask) {
    std::uint32_t different = 0;
    for (int i = 0; i < count; ++i)
        different |= a[i] ^ b[i];
    return (different & mask) != 0;
}

bool differs(const PixelRows &a, const PixelRows &b, const QRect &place, std::uint32_t mask) {
    const auto bytes = static_cast<std::size_t>(place.width()) * sizeof *a.first;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const std::uint32_t *rowA = a.first + y * a.stride + place.x();
        const std::uint32_t *rowB = b.first + y * b.stride + place.x();
        if (std::memcmp(rowA, rowB, bytes) != 0 &&
            (mask == everyBit || differsInBits(rowA, rowB, place.width(), mask)))
            return true;
    }
    return false;
}

int endOfTile(int at) { return at - at % Tile::side + Tile::side; }

} // namespace

QRegion differingTiles(const PixelRows &a, const PixelRows &b, QSize size, const QRegion &where,
                       std::uint32_t mask) {
    QRegion different;
    for (const QRect &piece : where.intersected(QRect(QPoint(), size))) {
        for (int y = piece.top(), below = 0; y <= piece.bottom(); y = below) {
            below = std::min(endOfTile(y), piece.bottom() + 1);
            // Neighbours become one rectangle: regions are slow to put together.
            QRect run;
            for (int x = piece.left(), right = 0; x <= piece.right(); x = right) {
                right = std::min(endOfTile(x), piece.right() + 1);
                const QRect place(x, y, right - x, below - y);
                if (differs(a, b, place, mask)) {
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
