// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace gif {

/// A colour of sRGB as 0xRRGGBB; what is above these 24 bits is 0.
using Rgb = std::uint32_t;

constexpr Rgb rgbBits = 0xFFFFFF;

/// A place in a space where straight distances come close to the colour difference CIEDE2000 (CIE
/// 142-2001): CIELAB with its lightness and chroma squeezed as that formula weighs them. 1 is about
/// what can just be seen.
struct Perceived {
    float lightness = 0;
    float a = 0;
    float b = 0;
};

Perceived perceived(Rgb colour);

/// The square of the distance.
inline float squaredDistance(const Perceived &x, const Perceived &y) {
    const float l = x.lightness - y.lightness, a = x.a - y.a, b = x.b - y.b;
    return l * l + a * a + b * b;
}

/// CIEDE2000 itself, which costs some ten times as much: for what is promised.
float colourDifference(Rgb first, Rgb second);

} // namespace gif
