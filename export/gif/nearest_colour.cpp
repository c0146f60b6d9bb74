// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/nearest_colour.h"

#include <algorithm>

namespace gif {

NearestColour::NearestColour(std::span<const Perceived> places)
    : places_(places.begin(), places.end()) {
    for (std::size_t i = 0; i < places.size(); ++i)
        sorted_.push_back({places[i], std::uint8_t(i)});
    std::ranges::stable_sort(
        sorted_, [](const Place &x, const Place &y) { return x.at.lightness < y.at.lightness; });
}

NearestColour::Found NearestColour::nearest(const Perceived &place, std::uint8_t guess) const {
    Found best{guess, squaredDistance(places_[guess], place)};
    const auto consider = [&](const Place &candidate) {
        const float l = candidate.at.lightness - place.lightness;
        if (l * l > best.squared)
            return false;
        const float squared = squaredDistance(candidate.at, place);
        if (squared < best.squared || (squared == best.squared && candidate.index < best.index))
            best = {candidate.index, squared};
        return true;
    };
    const auto middle =
        std::ranges::lower_bound(sorted_, place.lightness, {},
                                 [](const Place &candidate) { return candidate.at.lightness; });
    for (auto up = middle; up != sorted_.end() && consider(*up);)
        ++up;
    for (auto down = middle; down != sorted_.begin() && consider(*(down - 1));)
        --down;
    return best;
}

} // namespace gif
