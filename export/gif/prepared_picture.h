// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/colour.h"
#include "export/gif/frame_source.h"

#include <cstdint>
#include <vector>

namespace gif {

/// What differs between two frames, and the colours to say it with. It depends on the recorded
/// frames alone, not on what the file shows so far, so pictures can be prepared in any order.
struct PreparedPicture {
    /// Marks a pixel of the box that did not change.
    static constexpr std::uint32_t kept = 0xFFFFFFFF;

    struct Colour {
        Rgb rgb = 0;
        std::uint32_t count = 0;  ///< pixels
        bool flat = false;        ///< an area of at least `smallestFlat` pixels has it
        std::uint8_t nearest = 0; ///< the entry of `table` that comes closest
        float distance = 0;       ///< between the two, as `Perceived` has it
        Perceived place;
    };

    Rect box; ///< encloses what changed; empty when nothing did
    /// For each pixel of the box its colour, by rows; once the colours are counted, the number of
    /// it in `colours`. `kept` where nothing changed.
    std::vector<std::uint32_t> pixels;
    bool keepsPixels = false; ///< whether some pixel is kept
    std::vector<Colour> colours;
    std::vector<Rgb> table; ///< at most 256, at most 255 when pixels are kept
    bool exact = false;     ///< whether the table has every colour
};

} // namespace gif
