// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/frame_runs.h"

#include <algorithm>

FrameRuns FrameRuns::of(std::uint64_t first, std::uint64_t count) {
    FrameRuns runs;
    if (count > 0)
        runs.runs_.push_back({first, first + count - 1});
    return runs;
}

std::uint64_t FrameRuns::count() const {
    std::uint64_t sum = 0;
    for (const Run &run : runs_)
        sum += run.count();
    return sum;
}

std::uint64_t FrameRuns::at(std::uint64_t place) const {
    for (const Run &run : runs_) {
        if (place < run.count())
            return run.first + place;
        place -= run.count();
    }
    return last();
}

std::optional<std::uint64_t> FrameRuns::nextFrom(std::uint64_t frame) const {
    const auto run = std::ranges::find_if(runs_, [frame](Run each) { return each.last >= frame; });
    return run == runs_.end() ? std::nullopt : std::optional(std::max(run->first, frame));
}

/// In order; what touches the last run goes on with it.
void FrameRuns::append(Run run) {
    if (!runs_.empty() && run.first <= runs_.back().last + 1)
        runs_.back().last = std::max(runs_.back().last, run.last);
    else
        runs_.push_back(run);
}

FrameRuns FrameRuns::within(Run part) const {
    FrameRuns inside;
    for (const Run &run : runs_)
        if (run.first <= part.last && part.first <= run.last)
            inside.append({std::max(run.first, part.first), std::min(run.last, part.last)});
    return inside;
}

FrameRuns FrameRuns::without(Run part) const {
    FrameRuns rest;
    for (const Run &run : runs_) {
        if (run.first < part.first)
            rest.append({run.first, std::min(run.last, part.first - 1)});
        if (run.last > part.last)
            rest.append({std::max(run.first, part.last + 1), run.last});
    }
    return rest;
}

FrameRuns FrameRuns::without(const FrameRuns &others) const {
    FrameRuns rest = *this;
    for (const Run &run : others.runs_)
        rest = rest.without(run);
    return rest;
}

FrameRuns FrameRuns::with(Run more) const {
    std::vector<Run> all = runs_;
    all.push_back(more);
    std::ranges::sort(all, {}, &Run::first);
    FrameRuns both;
    for (const Run &run : all)
        both.append(run);
    return both;
}

FrameRuns
surplusOfStills(const FrameRuns &frames, std::uint64_t longest,
                const std::function<bool(std::uint64_t earlier, std::uint64_t frame)> &showsSame) {
    FrameRuns surplus;
    std::optional<std::uint64_t> earlier;
    std::uint64_t still = 0; // frames that have shown the same
    for (const FrameRuns::Run &run : frames.runs())
        for (std::uint64_t frame = run.first; frame <= run.last; ++frame) {
            still = earlier && showsSame(*earlier, frame) ? still + 1 : 1;
            if (still > longest)
                surplus.append({frame, frame});
            earlier = frame;
        }
    return surplus;
}
