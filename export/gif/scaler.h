// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/frame_source.h"

#include <array>
#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

namespace gif {

/// Scales pictures of one size to another, by the filter lanczos in linear light, so that thin
/// lines and text keep their weight. What the filter overshoots is clamped to the range of the
/// pixels around, so that there are no halos.
///
/// A pixel of the result depends on nothing but the pixels around its place: what did not change
/// stays the same to the bit, and parts can be scaled again on their own.
class Scaler {
public:
    /// Sizes in pixels, from 1 to 65,535.
    Scaler(int fromWidth, int fromHeight, int width, int height);

    /// Scales the part `part` of the result, which is within it, from the whole picture `from`
    /// (rows `stride` pixels apart, as of `Frame`) into `result`, rows of the result's width. Ends
    /// early, with some of it unscaled, when `stop` is asked for.
    void scale(const std::uint32_t *from, std::ptrdiff_t stride, const Rect &part,
               std::uint32_t *result, const std::stop_token &stop = {}) const;

    /// Where the result may change when the picture changes within `changed`.
    Rect affected(const Rect &changed) const;

private:
    /// What one pixel of the result is made of along one axis.
    struct Taps {
        int first = 0;              ///< the first pixel that counts
        int near = 0;               ///< those that bound the result: the first of them,
        int nearEnd = 0;            ///< and the one after the last
        std::vector<float> weights; ///< their sum is 1
    };

    using Sample = std::array<float, 3>;

    /// A pixel that is scaled along one axis, and the range of those that bound it.
    struct Across {
        Sample value{0, 0, 0};
        Sample least{2, 2, 2};
        Sample most{-1, -1, -1};
    };

    void scaleAcross(const std::uint32_t *row, const Rect &band, Across *out) const;
    void scaleDown(std::span<const Across> across, int firstRow, const Rect &band,
                   std::uint32_t *result) const;
    static std::vector<Taps> taps(int from, int to);

    int width_;
    std::vector<Taps> columns_;
    std::vector<Taps> rows_;
};

/// The frames of another source in another size. What did not change is not scaled again.
class ScalingSource : public FrameSource {
public:
    /// `source` outlives this; its frames have the first size. What is handed out after `stop` was
    /// asked for is of no use.
    ScalingSource(FrameSource &source, int fromWidth, int fromHeight, int width, int height,
                  std::stop_token stop = {});

    bool next(Frame &frame) override;
    bool rewind() override;

private:
    FrameSource &source_;
    Scaler scaler_;
    int width_;
    int height_;
    std::stop_token stop_;
    bool begun_ = false;
    std::vector<std::uint32_t> pixels_;
    std::vector<Rect> changed_;
};

} // namespace gif
