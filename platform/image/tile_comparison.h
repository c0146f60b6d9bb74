// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QSize>

#include <cstddef>
#include <cstdint>

/// Rows of words, one word a pixel. Borrowed.
struct PixelRows {
    const std::uint32_t *first = nullptr;
    std::ptrdiff_t stride = 0; ///< words from one row to the next
};

/// Where two pictures of one size differ, looked for within `where` only and given in pieces of
/// squares of 64 by 64 pixels, as recordings keep them. Only the bits of `mask` count. Programs
/// draw again what looks as before, and some compositing managers draw all of the screen whatever
/// has changed on it.
QRegion differingTiles(const PixelRows &a, const PixelRows &b, QSize size, const QRegion &where,
                       std::uint32_t mask = 0xffffffff);
