// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// How large a GIF will be, from what its first frames take: a later picture is taken to need as
/// many bytes for each pixel that changed as those that are done and changed about as much. Pure
/// arithmetic.
class SizeForecast {
public:
    /// How much each frame of the file changes against the one before, in pixels; the first one's
    /// is not looked at.
    explicit SizeForecast(std::vector<double> changes);

    /// A frame that stands for most of the file, after the first one: worth trying beforehand. None
    /// where nothing changes.
    std::optional<std::size_t> weightiestFrame() const;
    /// That frame takes about so many bytes.
    void addSample(std::size_t frame, std::uint64_t bytes);
    /// Those from `frame` on take about so many together.
    void addSamples(std::size_t frame, std::size_t count, std::uint64_t bytes);

    /// The first `frames` frames take `bytes` bytes together. To be called with growing numbers.
    void add(std::int64_t frames, std::uint64_t bytes);

    /// Bytes of the whole file; 0 before anything is known.
    std::uint64_t bytes() const;

private:
    /// Frames that change about as much: up to four times as much as one another.
    struct Group {
        double toCome = 0; // pixels of frames that are not done
        double tried = 0;  // pixels of those that are, and of samples
        double bytes = 0;  // that these take
    };
    static std::size_t groupOf(double change);

    std::vector<double> changes_;
    std::array<Group, 16> groups_;
    std::size_t frames_ = 0;
    std::uint64_t bytes_ = 0;
};
