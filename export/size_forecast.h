// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

/// How large a GIF will be, from what its first frames take: every later picture is taken to need
/// as many bytes for each pixel that changed as those that are done. Pure arithmetic.
class SizeForecast {
public:
    /// How much each frame of the file changes against the one before, in any unit; the first one's
    /// is not looked at.
    explicit SizeForecast(std::vector<double> changes);

    /// The first `frames` frames take `bytes` bytes together. To be called with growing numbers.
    void add(std::int64_t frames, std::uint64_t bytes);

    /// Bytes of the whole file; 0 before anything is known.
    std::uint64_t bytes() const;

private:
    std::vector<double> upTo_; // changes of all frames before each number, the first one's left out
    std::int64_t frames_ = 0;
    std::uint64_t bytes_ = 0;
    std::uint64_t first_ = 0; // bytes of the first picture
};
