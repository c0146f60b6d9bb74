// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "region/region_geometry.h"

#include <QString>
#include <QStringList>

/// A region as text that a person can read and change: "x y width height", in points from the lower
/// left corner of its screen.
namespace region_text {

inline QString textOf(const region_geometry::Region &region) {
    return QStringLiteral("%1 %2 %3 %4")
        .arg(region.x)
        .arg(region.y)
        .arg(region.width)
        .arg(region.height);
}

/// None where the text is no region of at least one point each way.
inline std::optional<region_geometry::Region> regionOf(const QString &text) {
    const QStringList numbers = text.split(QLatin1Char(' '));
    if (numbers.size() != 4)
        return std::nullopt;
    std::array<std::int32_t, 4> values{};
    for (qsizetype each = 0; each < numbers.size(); ++each) {
        bool isNumber = false;
        values[static_cast<std::size_t>(each)] = numbers[each].toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    const auto [x, y, width, height] = values;
    if (width < 1 || height < 1)
        return std::nullopt;
    return region_geometry::Region{x, y, width, height};
}

} // namespace region_text
