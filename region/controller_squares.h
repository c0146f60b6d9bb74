// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "region/region_fields.h"
#include "region/region_geometry.h"

/// The five squares between the desk, which keeps them as a list of holders, and the rules,
/// which take five points.
namespace controller_squares {

/// The desk's squares; those that its list lacks are at the origin.
inline region_geometry::Squares read(const RegionFields &fields) {
    region_geometry::Squares squares;
    for (std::size_t i = 0; i < std::min(squares.size(), fields.arrayScreenPointSquare.size());
         ++i) {
        const QSizeF place = fields.arrayScreenPointSquare[i].sizeDimension();
        squares[i] = {place.width(), place.height()};
    }
    return squares;
}

/// Replaces the desk's list.
inline void write(RegionFields &fields, const region_geometry::Squares &squares) {
    fields.arrayScreenPointSquare.clear();
    for (const region_geometry::Point &corner : squares)
        fields.arrayScreenPointSquare.emplace_back(QSizeF(corner.x, corner.y));
}

} // namespace controller_squares
