// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

/// A set of a recording's frames: runs of frame numbers in order, none of which touches the next.
/// What is kept of a recording is one, what is left out of it is another. A value; it knows no
/// pictures.
class FrameRuns {
public:
    /// From the first to the last frame number, both included.
    struct Run {
        std::uint64_t first = 0;
        std::uint64_t last = 0;

        std::uint64_t count() const { return last - first + 1; }
        bool operator==(const Run &) const = default;
    };

    /// So many frames from that one on.
    static FrameRuns of(std::uint64_t first, std::uint64_t count);

    bool isEmpty() const { return runs_.empty(); }
    std::uint64_t count() const;
    const std::vector<Run> &runs() const { return runs_; }
    /// Of the whole set, which is not empty.
    std::uint64_t first() const { return runs_.front().first; }
    std::uint64_t last() const { return runs_.back().last; }

    /// The number of the frame at this place of the set, counted from 0; the last one's beyond its
    /// end. The set is not empty.
    std::uint64_t at(std::uint64_t place) const;
    /// The first frame of the set from that one on; none behind its last.
    std::optional<std::uint64_t> nextFrom(std::uint64_t frame) const;

    /// The part of the set within a run, and the rest of it.
    FrameRuns within(Run part) const;
    FrameRuns without(Run part) const;
    FrameRuns without(const FrameRuns &others) const;
    /// The set with a run more.
    FrameRuns with(Run more) const;

    bool operator==(const FrameRuns &) const = default;

private:
    void append(Run run);

    std::vector<Run> runs_;

    friend FrameRuns surplusOfStills(const FrameRuns &, std::uint64_t,
                                     const std::function<bool(std::uint64_t, std::uint64_t)> &);
};

/// What of these frames to leave out so that no picture stands still for more than `longest`
/// frames, at least 1: of each longer row of frames that show the same, all beyond the first
/// `longest`. `showsSame` says whether a frame shows the same as an earlier one.
FrameRuns
surplusOfStills(const FrameRuns &frames, std::uint64_t longest,
                const std::function<bool(std::uint64_t earlier, std::uint64_t frame)> &showsSame);
