// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/colour.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

namespace gif {

/// A colour that is to be shown and how much of it there is.
struct WantedColour {
    Rgb rgb = 0;
    std::uint32_t weight = 0;
    bool exact = false; ///< must be in the table as it is
};

/// At most `limit` (1 to 256) colours that come close to all of `wanted`, which is not empty:
/// exactly these when they are not more. Otherwise those that must be exact (the first `limit` of
/// them), then the middles of groups that were split where the error is largest and moved to where
/// the mean difference is smallest; a colour that makes up much of its group represents it. When
/// `stop` is asked for, the table is not as good.
std::vector<Rgb> makeColourTable(std::span<const WantedColour> wanted, std::size_t limit,
                                 const std::stop_token &stop = {});

} // namespace gif
