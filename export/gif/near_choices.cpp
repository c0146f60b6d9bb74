// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/near_choices.h"

namespace gif {

Tolerance::Tolerance(const PreparedPicture &picture, std::span<const Rgb> table,
                     std::span<const std::uint8_t> nearest, float tolerance)
    : picture_(picture), table_(table), nearest_(nearest), tolerance_(tolerance),
      known_(picture.colours.size() * 64), smallest_(picture.colours.size(), -1) {}

bool Tolerance::judge(std::uint32_t colour, std::uint8_t entry) {
    const Rgb wanted = picture_.colours[colour].rgb;
    float &smallest = smallest_[colour];
    if (smallest < 0)
        smallest = colourDifference(wanted, table_[nearest_[colour]]);
    return colourDifference(wanted, table_[entry]) <= smallest + limit(colour);
}

} // namespace gif
