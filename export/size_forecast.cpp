// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/size_forecast.h"

#include <algorithm>
#include <cmath>

SizeForecast::SizeForecast(std::vector<double> changes) {
    upTo_.assign(1, 0.0);
    for (std::size_t frame = 0; frame < changes.size(); ++frame)
        upTo_.push_back(upTo_.back() + (frame == 0 ? 0.0 : changes[frame]));
}

void SizeForecast::add(std::int64_t frames, std::uint64_t bytes) {
    if (frames <= 0)
        return;
    if (frames_ == 0)
        first_ = bytes;
    frames_ = frames;
    bytes_ = bytes;
}

std::uint64_t SizeForecast::bytes() const {
    const auto done = std::min(static_cast<std::size_t>(frames_), upTo_.size() - 1);
    const double changed = upTo_[done];
    if (changed <= 0.0)
        return bytes_;
    const double later = static_cast<double>(bytes_ - first_) * upTo_.back() / changed;
    return first_ + static_cast<std::uint64_t>(std::llround(later));
}
