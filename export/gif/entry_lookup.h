// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/colour.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace gif {

/// Which entry of a table of at most 256 is exactly a colour.
class EntryLookup {
public:
    static constexpr int absent = -1;

    explicit EntryLookup(std::span<const Rgb> table) {
        slots_.fill({0, absent});
        for (std::size_t i = 0; i < table.size(); ++i) {
            Slot &slot = slots_[slotOf(table[i])];
            if (slot.index == absent)
                slot = {table[i], std::int16_t(i)};
        }
    }

    int find(Rgb colour) const { return slots_[slotOf(colour)].index; }

private:
    struct Slot {
        Rgb colour;
        std::int16_t index;
    };
    static constexpr int bits = 10;

    std::size_t slotOf(Rgb colour) const {
        std::size_t slot = (colour * 0x9E3779B1u) >> (32 - bits);
        while (slots_[slot].index != absent && slots_[slot].colour != colour)
            slot = (slot + 1) % slots_.size();
        return slot;
    }

    std::array<Slot, std::size_t(1) << bits> slots_;
};

} // namespace gif
