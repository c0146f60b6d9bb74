// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/colour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace gif {
namespace {

struct Lab {
    float l, a, b;
};

constexpr float toNearGrey = 6103515625.0f; // 25 to the power of 7, as the formula has it
constexpr float chromaSqueeze = 0.045f;

std::array<float, 256> linearLight() {
    std::array<float, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double c = double(i) / 255;
        table[i] = float(c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4));
    }
    return table;
}

const std::array<float, 256> linear = linearLight();

/// The cube root by a guess of its bits and two rounds of Halley's rule: half the library's time,
/// and exact to the last digits of single precision.
float cubeRoot(float x) {
    union {
        float value;
        std::uint32_t bits;
    } guess{x};
    guess.bits = guess.bits / 3 + 709921077u;
    float y = guess.value;
    for (int i = 0; i < 2; ++i) {
        const float cube = y * y * y;
        y = y * (cube + 2 * x) / (2 * cube + x);
    }
    return y;
}

float labCurve(float t) { return t > 0.008856452f ? cubeRoot(t) : 7.787037f * t + 16.0f / 116; }

/// CIELAB under D65.
Lab lab(Rgb colour) {
    const float r = linear[colour >> 16 & 255], g = linear[colour >> 8 & 255],
                b = linear[colour & 255];
    const float x = labCurve((0.4124564f * r + 0.3575761f * g + 0.1804375f * b) / 0.95047f);
    const float y = labCurve(0.2126729f * r + 0.7151522f * g + 0.0721750f * b);
    const float z = labCurve((0.0193339f * r + 0.1191920f * g + 0.9503041f * b) / 1.08883f);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// By how much the formula stretches the red-green axis near grey.
float redGreenStretch(float chroma) {
    const float third = chroma * chroma * chroma;
    const float seventh = third * third * chroma;
    return 1.5f - 0.5f * std::sqrt(seventh / (seventh + toNearGrey));
}

/// The sum of 1/S_L from lightness 0, for every half unit.
std::array<float, 202> lightnessSqueeze() {
    std::array<float, 202> table{};
    double sum = 0;
    constexpr int parts = 50;
    for (std::size_t i = 1; i < table.size(); ++i) {
        for (int part = 0; part < parts; ++part) {
            const double l = (double(i - 1) + (part + 0.5) / parts) / 2 - 50;
            sum += 0.5 / parts / (1 + 0.015 * l * l / std::sqrt(20 + l * l));
        }
        table[i] = float(sum);
    }
    return table;
}

const std::array<float, 202> squeezed = lightnessSqueeze();

float radians(float degrees) { return degrees * std::numbers::pi_v<float> / 180; }

/// Hue in degrees, 0 for grey.
float hueOf(float a, float b) {
    if (a == 0 && b == 0)
        return 0;
    const float hue = std::atan2(b, a) * 180 / std::numbers::pi_v<float>;
    return hue < 0 ? hue + 360 : hue;
}

} // namespace

Perceived perceived(Rgb colour) {
    const Lab c = lab(colour);
    const float place = std::clamp(c.l, 0.0f, 100.0f) * 2;
    const auto cell = std::size_t(place);
    const float lightness =
        squeezed[cell] + (place - float(cell)) * (squeezed[cell + 1] - squeezed[cell]);
    const float a = c.a * redGreenStretch(std::sqrt(c.a * c.a + c.b * c.b));
    const float chroma = std::sqrt(a * a + c.b * c.b);
    const float scale =
        chroma < 1e-3f ? 1 : std::log(1 + chromaSqueeze * chroma) / (chromaSqueeze * chroma);
    return {lightness, a * scale, c.b * scale};
}

float colourDifference(Rgb first, Rgb second) {
    if (first == second)
        return 0;
    const Lab x = lab(first), y = lab(second);
    const float stretch =
        redGreenStretch((std::sqrt(x.a * x.a + x.b * x.b) + std::sqrt(y.a * y.a + y.b * y.b)) / 2);
    const float xa = x.a * stretch, ya = y.a * stretch;
    const float xChroma = std::sqrt(xa * xa + x.b * x.b), yChroma = std::sqrt(ya * ya + y.b * y.b);
    const float xHue = hueOf(xa, x.b), yHue = hueOf(ya, y.b);

    const float dL = y.l - x.l, dC = yChroma - xChroma;
    float hueStep = 0, meanHue = xHue + yHue;
    if (xChroma * yChroma != 0) {
        hueStep = yHue - xHue;
        if (hueStep > 180)
            hueStep -= 360;
        else if (hueStep < -180)
            hueStep += 360;
        if (std::abs(xHue - yHue) > 180)
            meanHue += meanHue < 360 ? 360.0f : -360.0f;
        meanHue /= 2;
    }
    const float dH = 2 * std::sqrt(xChroma * yChroma) * std::sin(radians(hueStep) / 2);

    const float meanL = (x.l + y.l) / 2 - 50, meanC = (xChroma + yChroma) / 2;
    const float t =
        1 - 0.17f * std::cos(radians(meanHue - 30)) + 0.24f * std::cos(radians(2 * meanHue)) +
        0.32f * std::cos(radians(3 * meanHue + 6)) - 0.20f * std::cos(radians(4 * meanHue - 63));
    const float bluish = (meanHue - 275) / 25;
    const float turn = 30 * std::exp(-bluish * bluish);
    const float third = meanC * meanC * meanC, seventh = third * third * meanC;
    const float rotation =
        -2 * std::sqrt(seventh / (seventh + toNearGrey)) * std::sin(radians(2 * turn));
    const float l = dL / (1 + 0.015f * meanL * meanL / std::sqrt(20 + meanL * meanL));
    const float c = dC / (1 + chromaSqueeze * meanC);
    const float h = dH / (1 + 0.015f * meanC * t);
    return std::sqrt(std::max(0.0f, l * l + c * c + h * h + rotation * c * h));
}

} // namespace gif
