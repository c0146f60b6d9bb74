// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/encoder.h"

#include <cstdint>
#include <vector>

/// Frames that a test made, as a source for the encoder.
class Clip : public gif::FrameSource {
public:
    Clip(int width, int height) : width_(width), height_(height) {}

    using Pixels = std::vector<std::uint32_t>;

    int width() const { return width_; }
    int height() const { return height_; }

    /// A frame, and where it may differ from the one before: anywhere when nothing is said.
    void add(Pixels pixels, std::int64_t delay, std::vector<gif::Rect> changed) {
        frames_.push_back({std::move(pixels), delay, std::move(changed)});
    }
    void add(Pixels pixels, std::int64_t delay = 10) {
        add(std::move(pixels), delay, {{0, 0, width_, height_}});
    }
    void add(std::uint32_t colour, std::int64_t delay = 10) {
        add(Pixels(std::size_t(width_) * std::size_t(height_), colour), delay);
    }

    std::size_t size() const { return frames_.size(); }
    const Pixels &pixels(std::size_t frame) const { return frames_[frame].pixels; }
    std::int64_t delay(std::size_t frame) const { return frames_[frame].delay; }

    bool next(gif::Frame &frame) override {
        if (next_ == frames_.size())
            return false;
        const Kept &kept = frames_[next_++];
        frame = {kept.pixels.data(), width_, kept.delay, kept.changed};
        return true;
    }

    bool rewind() override {
        next_ = 0;
        return true;
    }

    /// Encodes the clip from its first frame on.
    std::vector<std::uint8_t> encoded(float tolerance, int threads = 1) {
        gif::Options options;
        options.width = width_;
        options.height = height_;
        options.tolerance = tolerance;
        options.threads = threads;
        rewind();
        std::vector<std::uint8_t> bytes;
        outcome = gif::encode(*this, options, [&](std::span<const std::uint8_t> part) {
            bytes.insert(bytes.end(), part.begin(), part.end());
            return true;
        });
        return bytes;
    }

    gif::Outcome outcome; ///< of the last encoding

private:
    struct Kept {
        Pixels pixels;
        std::int64_t delay;
        std::vector<gif::Rect> changed;
    };
    int width_, height_;
    std::vector<Kept> frames_;
    std::size_t next_ = 0;
};
