// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/frame_source.h"
#include "export/gif/scaler.h"

#include <cstdint>
#include <string>
#include <vector>

/// A whole recording in memory, with the tiles of 64 by 64 pixels in which each frame differs from
/// the one before: what the program's frame store knows, too.
class BenchRecording : public gif::FrameSource {
public:
    using Pixels = std::vector<std::uint32_t>;

    BenchRecording(std::string called, int wide, int high, double rate)
        : name(std::move(called)), width(wide), height(high), rate_(rate) {}

    /// Adds a frame, 0xRRGGBB.
    void add(Pixels pixels);

    /// Reads raw RGB frames, 24 bits per pixel; false when there is none.
    bool load(const std::string &path);

    /// The same recording at half the size by the encoder's own scaler.
    BenchRecording halved() const;

    std::size_t size() const { return frames_.size(); }
    const Pixels &pixels(std::size_t frame) const { return frames_[frame]; }
    std::int64_t delay(std::size_t frame) const;
    /// Pixels of the tiles in which the frame differs from the one before.
    double changedPixels(std::size_t frame) const;

    bool next(gif::Frame &frame) override;
    bool rewind() override;

    const std::string name;
    const int width;
    const int height;

private:
    double rate_;
    std::size_t next_ = 0;
    std::vector<Pixels> frames_;
    std::vector<std::vector<gif::Rect>> changes_;
};

/// Ten seconds of a window of text over a wallpaper: typing, scrolling, a dialog that fades in.
BenchRecording madeDocument(int width, int height);

/// Ten seconds across a photograph-like picture with grain.
BenchRecording madePan(int width, int height);

/// A square of 200 by 100 that changes in every frame, and nothing else.
BenchRecording madeSquare(int width, int height, int seconds);

/// A minute in which a caret blinks, but for the last second, which pans as `madePan` does.
BenchRecording madeLateRush(int width, int height);
