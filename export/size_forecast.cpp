// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/size_forecast.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

SizeForecast::SizeForecast(std::vector<double> changes) : changes_(std::move(changes)) {
    for (std::size_t frame = 1; frame < changes_.size(); ++frame)
        groups_[groupOf(changes_[frame])].toCome += changes_[frame];
}

std::size_t SizeForecast::groupOf(double change) {
    const double number = std::log2(std::max(change, 1.0)) / 2;
    return std::min(static_cast<std::size_t>(number), std::tuple_size_v<decltype(groups_)> - 1);
}

std::optional<std::size_t> SizeForecast::weightiestFrame() const {
    const auto *weightiest = std::ranges::max_element(groups_, {}, &Group::toCome);
    std::vector<std::size_t> frames;
    for (std::size_t frame = 1; frame < changes_.size(); ++frame)
        if (changes_[frame] > 0.0 && &groups_[groupOf(changes_[frame])] == weightiest)
            frames.push_back(frame);
    if (frames.empty())
        return std::nullopt;
    return frames[frames.size() / 2];
}

void SizeForecast::addSample(std::size_t frame, std::uint64_t bytes) {
    Group &group = groups_[groupOf(changes_[frame])];
    group.tried += changes_[frame];
    group.bytes += static_cast<double>(bytes);
}

void SizeForecast::addSamples(std::size_t frame, std::size_t count, std::uint64_t bytes) {
    const auto from = changes_.begin() + static_cast<std::ptrdiff_t>(frame);
    const double changed = std::accumulate(from, from + static_cast<std::ptrdiff_t>(count), 0.0);
    for (std::size_t each = frame; changed > 0.0 && each < frame + count; ++each)
        addSample(each, static_cast<std::uint64_t>(
                            std::llround(static_cast<double>(bytes) * changes_[each] / changed)));
}

void SizeForecast::add(std::int64_t frames, std::uint64_t bytes) {
    const auto done =
        std::min(static_cast<std::size_t>(std::max<std::int64_t>(frames, 0)), changes_.size());
    // The first picture is whole, and like no other.
    const std::size_t from = std::max<std::size_t>(frames_, 1);
    double changed = 0;
    for (std::size_t frame = from; frame < done; ++frame)
        changed += changes_[frame];
    for (std::size_t frame = from; frame < done; ++frame) {
        Group &group = groups_[groupOf(changes_[frame])];
        group.toCome -= changes_[frame];
        group.tried += changes_[frame];
        if (changed > 0.0 && frames_ > 0)
            group.bytes += static_cast<double>(bytes - bytes_) * changes_[frame] / changed;
    }
    frames_ = std::max(frames_, done);
    bytes_ = bytes;
}

std::uint64_t SizeForecast::bytes() const {
    double later = 0;
    for (const Group &group : groups_) {
        if (group.toCome <= 0.0)
            continue;
        // The nearest group of which anything is known.
        const Group *known = nullptr;
        for (const Group &other : groups_)
            if (other.tried > 0.0 &&
                (!known || std::abs(&other - &group) < std::abs(known - &group)))
                known = &other;
        if (known)
            later += group.toCome * known->bytes / known->tried;
    }
    return bytes_ + static_cast<std::uint64_t>(std::llround(later));
}
