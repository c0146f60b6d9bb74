// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/picture_coder.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace gif {

// The bytes around the image data, by GIF89a.

/// The longest time that one picture can be shown, in 1/100 s.
constexpr std::int64_t longestDelay = 65535;

/// The header, a table for all pictures (may be empty, at most 256), and how often the pictures are
/// repeated, 0 = loop forever; without a number they are shown once.
std::vector<std::uint8_t> fileBeginning(int width, int height, std::span<const Rgb> table,
                                        std::optional<std::uint16_t> repeats);

/// One picture, shown for `delay` (1/100 s, at most `longestDelay`) and then left where it is.
std::vector<std::uint8_t> pictureBytes(const CodedPicture &picture, std::int64_t delay);

/// The byte that ends the file.
constexpr std::uint8_t fileEnd = 0x3B;

} // namespace gif
