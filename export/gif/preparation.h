// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/frame_source.h"
#include "export/gif/prepared_picture.h"

#include <cstdint>
#include <stop_token>
#include <vector>

namespace gif {

/// Compares each frame with the one before and takes out what changed.
class ChangeReader {
public:
    ChangeReader(int width, int height);

    /// The picture for a frame, its pixels as colours; everything changed in the first one.
    PreparedPicture read(const Frame &frame);

private:
    Rect boundsOfChange(const Frame &frame, const Rect &within) const;

    int width_;
    int height_;
    bool begun_ = false;
    std::vector<Rgb> recorded_; ///< the frame before
};

/// Counts the colours of a picture, finds its flat areas and makes its table: as small
/// as `tolerance` (CIEDE2000) allows. May be called for
/// several pictures at a time, each in a thread of its own. The picture is of no use when `stop`
/// was asked for.
void chooseColours(PreparedPicture &picture, float tolerance, const std::stop_token &stop);

} // namespace gif
