// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/colour_table.h"

#include "export/gif/nearest_colour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace gif {
namespace {

/// From so many colours on, those that hardly differ are taken together.
constexpr std::size_t mostPoints = 16384;
constexpr int rounds = 5;
/// In the last rounds a colour counts less the farther it is: the mean difference is wanted small,
/// not the mean of its square.
constexpr int roundsOfMedians = 3;
constexpr float smallestDistance = 0.3f;
/// A colour with this share of its group's weight represents the group.
constexpr float ownShare = 0.4f;

struct Point {
    Perceived at;
    float r, g, b;
    float weight;
    std::uint8_t group = 0;
};

Point pointOf(float r, float g, float b, float weight) {
    const auto whole = [](float v) { return Rgb(std::clamp(v + 0.5f, 0.0f, 255.0f)); };
    return {perceived(whole(r) << 16 | whole(g) << 8 | whole(b)), r, g, b, weight};
}

Point pointOf(const WantedColour &wanted) {
    return pointOf(float(wanted.rgb >> 16 & 255), float(wanted.rgb >> 8 & 255),
                   float(wanted.rgb & 255), float(wanted.weight));
}

/// Colours as they are, or the means of cells of 8 by 4 by 8 when there are too many.
std::vector<Point> pointsOf(std::span<const WantedColour> wanted) {
    std::vector<Point> points;
    if (wanted.size() <= mostPoints) {
        for (const WantedColour &colour : wanted) {
            if (!colour.exact)
                points.push_back(pointOf(colour));
        }
        return points;
    }
    struct Cell {
        double r = 0, g = 0, b = 0, weight = 0;
    };
    std::vector<Cell> cells(1 << 16);
    for (const WantedColour &colour : wanted) {
        if (colour.exact)
            continue;
        const Rgb rgb = colour.rgb;
        Cell &cell = cells[(rgb >> 19 & 31) << 11 | (rgb >> 10 & 63) << 5 | (rgb >> 3 & 31)];
        const double weight = colour.weight;
        cell.r += weight * double(rgb >> 16 & 255);
        cell.g += weight * double(rgb >> 8 & 255);
        cell.b += weight * double(rgb & 255);
        cell.weight += weight;
    }
    for (const Cell &cell : cells) {
        if (cell.weight > 0)
            points.push_back(pointOf(float(cell.r / cell.weight), float(cell.g / cell.weight),
                                     float(cell.b / cell.weight), float(cell.weight)));
    }
    return points;
}

/// Some points that are one group, as a range of a list.
struct Group {
    std::size_t begin = 0;
    std::size_t end = 0;
    int axis = 0;     ///< along which they are spread most
    float middle = 0; ///< their mean there
    double error = 0; ///< what splitting them may gain
};

float along(const Perceived &place, int axis) {
    return axis == 0 ? place.lightness : axis == 1 ? place.a : place.b;
}

Group measured(const std::vector<Point> &points, std::size_t begin, std::size_t end) {
    std::array<double, 3> sum{}, squares{};
    double weight = 0;
    for (std::size_t i = begin; i < end; ++i) {
        weight += double(points[i].weight);
        for (int axis = 0; axis < 3; ++axis) {
            const auto value = double(along(points[i].at, axis));
            sum[std::size_t(axis)] += double(points[i].weight) * value;
            squares[std::size_t(axis)] += double(points[i].weight) * value * value;
        }
    }
    Group group{begin, end};
    double most = -1;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double spread = squares[axis] - sum[axis] * sum[axis] / weight;
        group.error += std::max(0.0, spread);
        if (spread > most) {
            most = spread;
            group.axis = int(axis);
            group.middle = float(sum[axis] / weight);
        }
    }
    if (end - begin < 2)
        group.error = 0;
    return group;
}

/// Splits the points into at most `count` groups and gives each its number.
std::size_t split(std::vector<Point> &points, std::size_t count) {
    std::vector<Group> groups{measured(points, 0, points.size())};
    while (groups.size() < count) {
        const auto widest = std::ranges::max_element(groups, {}, &Group::error);
        if (widest->error <= 0)
            break;
        const Group group = *widest;
        const auto middle = std::stable_partition(
            points.begin() + std::ptrdiff_t(group.begin),
            points.begin() + std::ptrdiff_t(group.end),
            [&](const Point &point) { return along(point.at, group.axis) <= group.middle; });
        const auto cut = std::size_t(middle - points.begin());
        if (cut == group.begin || cut == group.end) {
            widest->error = 0;
            continue;
        }
        *widest = measured(points, group.begin, cut);
        groups.push_back(measured(points, cut, group.end));
    }
    for (std::size_t i = 0; i < groups.size(); ++i) {
        for (std::size_t p = groups[i].begin; p < groups[i].end; ++p)
            points[p].group = std::uint8_t(i);
    }
    return groups.size();
}

Rgb rounded(double r, double g, double b) {
    const auto whole = [](double v) { return Rgb(std::clamp(v + 0.5, 0.0, 255.0)); };
    return whole(r) << 16 | whole(g) << 8 | whole(b);
}

/// The colour for each group: its mean, or the one colour that makes up most of it. Groups that
/// lost all their points keep the colour they have.
void moveToMiddles(const std::vector<Point> &points, std::vector<Rgb> &colours,
                   std::span<const float> distances) {
    struct Sum {
        double r = 0, g = 0, b = 0, weight = 0, pixels = 0;
        const Point *largest = nullptr;
    };
    std::vector<Sum> sums(colours.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point &point = points[i];
        Sum &sum = sums[point.group];
        double weight = double(point.weight);
        sum.pixels += weight;
        if (!distances.empty())
            weight /= double(std::max(distances[i], smallestDistance));
        sum.r += weight * double(point.r);
        sum.g += weight * double(point.g);
        sum.b += weight * double(point.b);
        sum.weight += weight;
        if (!sum.largest || point.weight > sum.largest->weight)
            sum.largest = &point;
    }
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const Sum &sum = sums[i];
        if (sum.weight <= 0)
            continue;
        if (double(sum.largest->weight) >= double(ownShare) * sum.pixels)
            colours[i] =
                rounded(double(sum.largest->r), double(sum.largest->g), double(sum.largest->b));
        else
            colours[i] = rounded(sum.r / sum.weight, sum.g / sum.weight, sum.b / sum.weight);
    }
}

/// Each point joins the group whose colour is nearest; those of `fixed`, which come after the
/// groups, take their points away.
std::vector<float> assign(std::vector<Point> &points, const std::vector<Rgb> &colours,
                          std::span<const Rgb> fixed) {
    std::vector<Perceived> places;
    places.reserve(colours.size() + fixed.size());
    for (const Rgb colour : colours)
        places.push_back(perceived(colour));
    for (const Rgb colour : fixed)
        places.push_back(perceived(colour));
    const NearestColour search(places);
    std::vector<float> distances(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto found = search.nearest(points[i].at, points[i].group);
        points[i].group = found.index;
        distances[i] = std::sqrt(found.squared);
    }
    return distances;
}

} // namespace

std::vector<Rgb> makeColourTable(std::span<const WantedColour> wanted, std::size_t limit,
                                 const std::stop_token &stop) {
    std::vector<Rgb> fixed, table;
    for (const WantedColour &colour : wanted) {
        if ((wanted.size() <= limit || colour.exact) && fixed.size() < limit)
            fixed.push_back(colour.rgb);
    }
    if (wanted.size() <= limit || fixed.size() == limit)
        return fixed;
    std::vector<Point> points = pointsOf(wanted);
    if (points.empty())
        return fixed;
    table.resize(split(points, limit - fixed.size()));
    moveToMiddles(points, table, {});
    for (int round = 0; round < rounds + roundsOfMedians && !stop.stop_requested(); ++round) {
        const std::vector<float> distances = assign(points, table, fixed);
        // What a fixed colour took needs no middle of its own.
        std::vector<Rgb> all(table);
        all.insert(all.end(), fixed.begin(), fixed.end());
        moveToMiddles(points, all, round < rounds ? std::span<const float>() : distances);
        std::copy_n(all.begin(), table.size(), table.begin());
    }
    table.insert(table.end(), fixed.begin(), fixed.end());
    return table;
}

} // namespace gif
