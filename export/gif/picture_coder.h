// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/prepared_picture.h"
#include "export/gif/workers.h"

#include <optional>
#include <stop_token>
#include <vector>

namespace gif {

/// One picture as the file has it.
struct CodedPicture {
    Rect box;
    std::vector<Rgb> table;         ///< its own; empty when it uses the file's
    int transparent = -1;           ///< the index that leaves a pixel as it is, or none
    int codeSize = 2;               ///< the first byte of the image data
    std::vector<std::uint8_t> data; ///< the rest of it
};

/// The table that all pictures may use.
struct SharedTable {
    std::vector<Rgb> colours; ///< at most 255, and one index more is transparent
    int transparent() const { return int(colours.size()); }
};

struct PictureJob;
struct PictureSpace;

/// Codes pictures onto the canvas: what a viewer shows so far.
///
/// Only pixels that differ from the frame before are ever written, so nothing flickers. Those that
/// are kept may be coded as transparent or as the colour that the canvas shows anyway, whichever
/// makes the data shorter.
class PictureCoder {
public:
    /// `tolerance` in CIEDE2000; 0 writes the nearest entry everywhere. `workers` outlives this.
    PictureCoder(int width, int height, float tolerance, Workers &workers);
    ~PictureCoder();

    void setSharedTable(SharedTable table) { shared_ = std::move(table); }

    /// None when the canvas is close enough to the frame already, and when `stop` was asked for.
    std::optional<CodedPicture> code(const PreparedPicture &picture, const std::stop_token &stop);

    /// The smallest picture that changes nothing.
    CodedPicture unchangedPixel() const;

private:
    CodedPicture best(const std::vector<PictureJob> &jobs, const std::stop_token &stop);

    int width_;
    float tolerance_;
    Workers &workers_;
    std::vector<Rgb> canvas_;
    bool begun_ = false;
    SharedTable shared_;
    std::vector<PictureSpace> spaces_;
};

} // namespace gif
