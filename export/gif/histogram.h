// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/colour.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gif {

/// The colours that a picture writes, numbered in the order in which they are met.
class Histogram {
public:
    struct Entry {
        Rgb colour = 0;
        std::uint32_t count = 0; ///< pixels
    };

    Histogram();

    /// Counts one pixel and gives the number of its colour.
    std::uint32_t add(Rgb colour) {
        if (colour != lastColour_ || entries_.empty())
            find(colour);
        ++entries_[last_].count;
        return last_;
    }

    const std::vector<Entry> &entries() const { return entries_; }
    std::size_t size() const { return entries_.size(); }

private:
    void find(Rgb colour);
    void grow();
    std::size_t slotOf(Rgb colour) const;

    std::vector<Entry> entries_;
    std::vector<std::uint32_t> slots_; ///< numbers plus 1, by a hash of the colour; 0 is free
    int slotBits_;
    Rgb lastColour_ = 0;
    std::uint32_t last_ = 0;
};

} // namespace gif
