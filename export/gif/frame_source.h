// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace gif {

/// A rectangle of pixels, upper left origin.
struct Rect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool isEmpty() const { return width <= 0 || height <= 0; }
    bool operator==(const Rect &) const = default;
};

/// One frame as a source hands it out. What it points to belongs to the source and stays valid
/// until the next call.
struct Frame {
    /// 0xRRGGBB in the lower 24 bits of each pixel, by rows, the uppermost first; what is above is
    /// ignored.
    const std::uint32_t *pixels = nullptr;
    std::ptrdiff_t stride = 0; ///< pixels from one row to the next
    /// How long it is shown, in 1/100 s. Players take less than 2 for 10.
    std::int64_t delay = 0;
    /// Outside these it equals the frame before. They may overlap, and reach beyond the picture;
    /// within them pixels may be equal, too. Not looked at for the first frame.
    std::span<const Rect> changed;
};

/// Hands out frames of one size, one after another. For one thread.
class FrameSource {
public:
    virtual ~FrameSource() = default;

    /// The next frame, or false when there is none: at the end, and where the recording is broken.
    virtual bool next(Frame &frame) = 0;

    /// Begins with the first frame again. False when that cannot be had: then the encoder does
    /// without looking ahead, and files are somewhat larger.
    virtual bool rewind() { return false; }
};

} // namespace gif
