// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QSize>

#include <cstdint>

namespace x11 {

/// Where two pictures of one size differ, looked for within `where` only and given in pieces of
/// squares of 64 by 64 pixels, as recordings keep them. Rows of words without gaps. Programs draw
/// again what looks as before, and some compositing managers draw all of the screen whatever has
/// changed on it.
QRegion differingTiles(const std::uint32_t *a, const std::uint32_t *b, QSize size,
                       const QRegion &where);

} // namespace x11
