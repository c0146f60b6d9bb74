// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/colour.h"

#include <cstdint>
#include <span>
#include <vector>

namespace gif {

/// Finds which of up to 256 places is nearest to another. The places are sorted by lightness, and a
/// search goes outwards from the lightness asked for until that alone is farther than the best:
/// some twenty of 256 are looked at.
class NearestColour {
public:
    explicit NearestColour(std::span<const Perceived> places);

    struct Found {
        std::uint8_t index = 0;
        float squared = 0; ///< the square of the distance
    };

    /// Of equally near ones the first. `guess` is any place that may be near, such as the answer
    /// for a similar colour; it only makes the search faster.
    Found nearest(const Perceived &place, std::uint8_t guess = 0) const;

private:
    struct Place {
        Perceived at;
        std::uint8_t index;
    };
    std::vector<Place> sorted_;
    std::vector<Perceived> places_;
};

} // namespace gif
