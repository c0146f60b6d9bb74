// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// Looks for the best GIF that fits under a limit, by making it again with more given up each time.
/// Rules only: what is tried is told by depth, from 0, where nothing is given up, to the end of the
/// ladder. First the colours, then the frame rate, then the size are given up.

/// What a GIF is made with.
struct FitChoice {
    float tolerance = 0; ///< of the encoder
    double rate = 0;     ///< frames per second
    double scale = 1;    ///< of width and height

    bool operator==(const FitChoice &) const = default;
};

/// How the size of a file follows what is given up; it only says where to look first. The defaults
/// were measured on recordings of interfaces, as GIFs.
struct FitLaw {
    double jumpByTolerance = 0;    ///< What the least tolerance saves at once, as a logarithm.
    double fallByTolerance = 0.35; ///< What the greatest saves beyond, likewise.
    double powerOfRate = 0.8;
    double powerOfPixels = 0.8;
};

class FitLadder {
public:
    /// From what was asked for; its scale is 1. Whether the rate and the size may be lowered.
    /// Where tolerance saves nothing, none is taken.
    FitLadder(const FitChoice &asked, bool mayLowerRate, bool mayShrink, const FitLaw &law = {});

    double end() const { return static_cast<double>(steps_.size()); }
    FitChoice at(double depth) const;
    /// How many times as large as at depth 0 the file is likely to be there, as a logarithm: falls
    /// with the depth.
    double likelySize(double depth) const;
    /// The depth at which that is `size`; the end where it is never so small.
    double depthOf(double size) const;

    static constexpr double lowestRate = 8; ///< frames per second
    static constexpr double smallestScale = 0.5;

private:
    enum class Step { Colours, Rate, Size };

    /// The logarithms by which a step makes the file smaller, at once and then as a whole.
    struct Fall {
        double jump;
        double slope;
        double whole() const { return jump + slope; }
    };
    Fall fallOf(Step step) const;

    FitChoice asked_;
    FitLaw law_;
    std::vector<Step> steps_;
};

class FitSearch {
public:
    /// `limit` in bytes. After `mostTrials`, at least 3, it ends.
    FitSearch(FitLadder ladder, std::uint64_t limit, int mostTrials = 6);

    /// The depth to try next; none when the search is over.
    std::optional<double> next() const;
    /// The file has that many bytes at that depth. Where making it was given up because it would
    /// exceed the limit, about how many it would have.
    void tried(double depth, std::uint64_t bytes);

    /// The depth of the best file that fits; none when none was found.
    std::optional<double> found() const;

private:
    struct Trial {
        double depth;
        double size; // logarithm of the bytes
    };

    FitLadder ladder_;
    std::uint64_t mostBytes_;
    double limit_; // its logarithm
    int mostTrials_;
    int trials_ = 0;
    std::optional<Trial> over_; // the deepest that does not fit
    std::optional<Trial> fits_; // the least deep that does
};
