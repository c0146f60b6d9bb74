// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/frame_source.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stop_token>

namespace gif {

/// What the file may cost in likeness, as a difference in CIEDE2000 beyond that of the nearest
/// entry of a picture's table; anything between these serves as well. Flat areas may differ by half
/// of it.
constexpr float bestTolerance = 0;
constexpr float balancedTolerance = 2;
constexpr float smallTolerance = 5;

struct Options {
    int width = 0; ///< pixels of every frame, 1 to 65,535
    int height = 0;
    float tolerance = balancedTolerance;
    /// How often a player begins again, 0 = loop forever; without a number it plays once.
    std::optional<std::uint16_t> repeats = 0;
    /// Threads to use, the caller's included. The bytes do not depend on it.
    int threads = 1;
    /// The encoder gives up once the file is sure to be larger than this.
    std::optional<std::uint64_t> sizeLimit = {};
    /// Called after each frame with the number of frames that are done.
    std::function<void(std::int64_t)> progress = {};
};

struct Outcome {
    enum class End {
        Complete,
        NoFrames,  ///< the source had none; nothing was written
        Cancelled, ///< what was written is no complete file
        TooLarge,  ///< `sizeLimit` would be exceeded; what was written is no complete file
        SinkFailed ///< the sink refused bytes
    };
    End end = End::Complete;
    std::uint64_t bytes = 0;   ///< given to the sink
    std::int64_t frames = 0;   ///< read and coded
    std::int64_t pictures = 0; ///< in the file; 1 when it does not move
    std::int64_t delay = 0;    ///< of all pictures together, in 1/100 s
};

/// Takes the bytes of the file, in order; false ends the encoding.
using Sink = std::function<bool(std::span<const std::uint8_t>)>;

/// Makes an animated GIF of all frames that `source` has, and calls `sink` and `progress` in the
/// caller's thread. When `stop` is asked for it returns within a tenth of a second, except from
/// within the source. Whatever the number of frames, the memory is that of a few of them; when
/// there is not enough, std::bad_alloc comes out.
Outcome encode(FrameSource &source, const Options &options, const Sink &sink,
               const std::stop_token &stop = {});

} // namespace gif
