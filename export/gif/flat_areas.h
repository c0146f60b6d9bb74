// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/prepared_picture.h"

namespace gif {

/// An area of one colour is flat from so many connected pixels on (by their sides): the eye sees it
/// as one thing, and any fault in its colour with it.
constexpr std::uint32_t smallestFlat = 64;

/// So many flat colours a picture keeps as they are: those of the largest areas.
constexpr std::size_t mostFlatColours = 200;

/// Finds the flat areas of a picture whose colours are counted, and sets `Colour::flat`.
void markFlatColours(PreparedPicture &picture);

} // namespace gif
