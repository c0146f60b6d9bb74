// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/lzw_coder.h"
#include "export/gif/near_choices.h"
#include "export/gif/picture_coder.h"
#include "export/gif/prepared_picture.h"

#include <span>
#include <stop_token>
#include <vector>

namespace gif {

/// A table for one picture, and what each of the picture's colours becomes in it.
struct TableInUse {
    std::span<const Rgb> table;
    std::vector<std::uint8_t> nearest;
    int transparent = -1;
    bool shared = false;
};

/// One way to code a picture. Which is the shortest is seen by trying: they differ by some percent,
/// now this way, now that. What it points to outlives it.
struct PictureJob {
    /// What a kept pixel is rather, where both serve.
    enum class Kept { Shown, Transparent };

    const PreparedPicture *picture = nullptr;
    const TableInUse *table = nullptr;
    std::span<const Rgb> canvas; ///< of the whole file
    int canvasWidth = 0;
    float tolerance = 0;
    Rect box; ///< within the picture's, in the file's pixels
    Kept kept = Kept::Shown;
    int lookAhead = 0;
};

/// What one job after another works with.
struct PictureSpace {
    LzwCoder coder;
    Tolerance tolerance;
    std::vector<IndexPair> pairs;
    std::vector<std::uint32_t> colours;
    std::vector<std::uint8_t> indices; ///< of the box, as they were coded
};

/// What a picture adds to the file, but for some bytes that every picture has.
std::size_t bytesOf(const CodedPicture &coded);

/// The smallest box around the pixels that the canvas does not show well enough.
Rect neededBox(const PreparedPicture &picture, const TableInUse &table, std::span<const Rgb> canvas,
               int canvasWidth, float tolerance, Tolerance &judge);

/// No data when `stop` was asked for.
CodedPicture attempt(const PictureJob &job, PictureSpace &space, const std::stop_token &stop);

} // namespace gif
