// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/histogram.h"

namespace gif {
namespace {

constexpr int firstSlotBits = 10;

std::size_t hashed(Rgb colour, int bits) { return (colour * 0x9E3779B1u) >> (32 - bits); }

} // namespace

Histogram::Histogram() : slots_(std::size_t(1) << firstSlotBits), slotBits_(firstSlotBits) {}

/// The slot that the colour has, or the free one where it belongs.
std::size_t Histogram::slotOf(Rgb colour) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hashed(colour, slotBits_);
    while (slots_[slot] != 0 && entries_[slots_[slot] - 1].colour != colour)
        slot = (slot + 1) & mask;
    return slot;
}

void Histogram::find(Rgb colour) {
    lastColour_ = colour;
    const std::size_t slot = slotOf(colour);
    if (slots_[slot] != 0) {
        last_ = slots_[slot] - 1;
        return;
    }
    last_ = std::uint32_t(entries_.size());
    entries_.push_back({colour, 0});
    slots_[slot] = last_ + 1;
    if (entries_.size() * 2 > slots_.size())
        grow();
}

void Histogram::grow() {
    ++slotBits_;
    slots_.assign(slots_.size() * 2, 0);
    for (std::uint32_t i = 0; i < entries_.size(); ++i)
        slots_[slotOf(entries_[i].colour)] = i + 1;
}

} // namespace gif
