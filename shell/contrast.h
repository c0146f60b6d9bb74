// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// How well one colour is seen beside another (WCAG 2.1, "contrast ratio"): from 1, where they are
/// as light as each other, to 21 between black and white. What belongs to a control has to have at
/// least 3 (section 1.4.11).
inline constexpr double leastContrast = 3;

/// "Relative luminance" there: 0 for black, 1 for white.
inline double luminance(const QColor &colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

inline double contrast(const QColor &one, const QColor &other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}
