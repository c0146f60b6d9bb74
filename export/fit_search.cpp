// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/fit_search.h"

#include "export/gif/encoder.h"

#include <algorithm>
#include <cmath>

namespace {

const double aim = std::log(0.94);        // of the limit
const double goodEnough = std::log(0.86); // likewise
constexpr int trialsBeforeTheEnd = 3;
constexpr double leastFall = 0.02; // by the whole tolerance, that is worth any
constexpr double closest = 0.01;   // two depths of which none in between is worth a trial

} // namespace

FitLadder::FitLadder(const FitChoice &asked, bool mayLowerRate, bool mayShrink, const FitLaw &law)
    : asked_(asked), law_(law) {
    if (asked.tolerance < gif::smallTolerance && fallOf(Step::Colours).whole() > leastFall)
        steps_.push_back(Step::Colours);
    if (mayLowerRate && asked.rate > lowestRate)
        steps_.push_back(Step::Rate);
    if (mayShrink)
        steps_.push_back(Step::Size);
}

FitChoice FitLadder::at(double depth) const {
    FitChoice choice = asked_;
    for (const Step step : steps_) {
        const double share = std::clamp(depth, 0.0, 1.0);
        depth -= 1;
        switch (step) {
        case Step::Colours:
            choice.tolerance +=
                static_cast<float>(share) * (gif::smallTolerance - asked_.tolerance);
            break;
        case Step::Rate:
            choice.rate *= std::pow(lowestRate / asked_.rate, share);
            break;
        case Step::Size:
            choice.scale *= std::pow(smallestScale, share);
            break;
        }
    }
    return choice;
}

FitLadder::Fall FitLadder::fallOf(Step step) const {
    switch (step) {
    case Step::Colours:
        return {law_.jumpByTolerance,
                law_.fallByTolerance * (1 - asked_.tolerance / gif::smallTolerance)};
    case Step::Rate:
        return {0, law_.powerOfRate * std::log(asked_.rate / lowestRate)};
    case Step::Size:
        break;
    }
    return {0, -2 * law_.powerOfPixels * std::log(smallestScale)};
}

double FitLadder::likelySize(double depth) const {
    double size = 0;
    for (const Step step : steps_) {
        const Fall fall = fallOf(step);
        if (depth > 0)
            size -= fall.jump + std::min(depth, 1.0) * fall.slope;
        depth -= 1;
    }
    return size;
}

double FitLadder::depthOf(double size) const {
    double depth = 0;
    for (const Step step : steps_) {
        const Fall fall = fallOf(step);
        if (-size <= fall.whole())
            return depth + std::max(-size - fall.jump, 0.0) / std::max(fall.slope, leastFall);
        size += fall.whole();
        depth += 1;
    }
    return end();
}

FitSearch::FitSearch(FitLadder ladder, std::uint64_t limit, int mostTrials)
    : ladder_(std::move(ladder)), mostBytes_(limit), limit_(std::log(static_cast<double>(limit))),
      mostTrials_(mostTrials) {}

std::optional<double> FitSearch::next() const {
    if (trials_ == 0)
        return 0.0;
    if (!fits_) {
        if (over_->depth >= ladder_.end())
            return std::nullopt;
        if (trials_ >= trialsBeforeTheEnd)
            return ladder_.end();
        return std::max(
            ladder_.depthOf(ladder_.likelySize(over_->depth) + limit_ + aim - over_->size),
            std::min(over_->depth + closest, ladder_.end()));
    }
    if (!over_ || fits_->size >= limit_ + goodEnough || trials_ >= mostTrials_ ||
        fits_->depth - over_->depth <= closest)
        return std::nullopt;
    // Between the two, on the line that goes through both and bends as sizes are likely to.
    const double share =
        std::clamp((limit_ + aim - over_->size) / (fits_->size - over_->size), 0.05, 0.95);
    const double from = ladder_.likelySize(over_->depth);
    const double to = ladder_.likelySize(fits_->depth);
    return ladder_.depthOf(from + share * (to - from));
}

void FitSearch::tried(double depth, std::uint64_t bytes) {
    ++trials_;
    const Trial trial{depth, std::log(static_cast<double>(std::max<std::uint64_t>(bytes, 1)))};
    if (bytes <= mostBytes_)
        fits_ = trial;
    else
        over_ = trial;
}

std::optional<double> FitSearch::found() const {
    return fits_ ? std::optional(fits_->depth) : std::nullopt;
}
