// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/near_choices.h"

namespace gif {

void Tolerance::begin(const PreparedPicture &picture, std::span<const Rgb> table,
                      std::span<const std::uint8_t> nearest, float tolerance) {
    constexpr std::size_t bytesPerColour = 64;
    picture_ = &picture;
    table_ = table;
    nearest_ = nearest;
    tolerance_ = tolerance;
    if (tolerance <= 0)
        return;
    known_.assign(picture.colours.size() * bytesPerColour, 0);
    smallest_.assign(picture.colours.size(), -1);
}

bool Tolerance::judge(std::uint32_t colour, std::uint8_t entry) {
    const Rgb wanted = picture_->colours[colour].rgb;
    float &smallest = smallest_[colour];
    if (smallest < 0)
        smallest = differences_.difference(wanted, table_[nearest_[colour]]);
    return differences_.difference(wanted, table_[entry]) <= smallest + limit(colour);
}

} // namespace gif
