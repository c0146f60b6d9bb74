// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/flat_areas.h"

#include <algorithm>

namespace gif {
namespace {

/// Pixels of one colour side by side.
struct Run {
    int begin;
    int end;
    std::uint32_t colour;
    std::uint32_t area;
};

/// Areas that grow together, as a forest.
class Areas {
public:
    std::uint32_t make() {
        areas_.push_back({std::uint32_t(areas_.size()), 0});
        return areas_.back().parent;
    }

    std::uint32_t root(std::uint32_t area) {
        while (areas_[area].parent != area)
            area = areas_[area].parent = areas_[areas_[area].parent].parent;
        return area;
    }

    void join(std::uint32_t a, std::uint32_t b) {
        a = root(a);
        b = root(b);
        if (a == b)
            return;
        areas_[b].parent = a;
        areas_[a].pixels += areas_[b].pixels;
    }

    std::uint32_t &pixels(std::uint32_t area) { return areas_[root(area)].pixels; }

private:
    struct Area {
        std::uint32_t parent;
        std::uint32_t pixels;
    };
    std::vector<Area> areas_;
};

/// The runs of a row whose colours occur often enough.
void readRow(const PreparedPicture &picture, int y, std::vector<Run> &runs) {
    runs.clear();
    const std::uint32_t *row = &picture.pixels[std::size_t(y) * std::size_t(picture.box.width)];
    for (int x = 0; x < picture.box.width;) {
        const std::uint32_t colour = row[x];
        const int begin = x;
        while (x < picture.box.width && row[x] == colour)
            ++x;
        if (colour != PreparedPicture::kept && picture.colours[colour].count >= smallestFlat)
            runs.push_back({begin, x, colour, 0});
    }
}

/// Joins the runs of a row with those above that touch them.
void joinRows(std::vector<Run> &runs, const std::vector<Run> &above, Areas &areas) {
    std::size_t first = 0;
    for (Run &run : runs) {
        run.area = areas.make();
        areas.pixels(run.area) += std::uint32_t(run.end - run.begin);
        while (first < above.size() && above[first].end <= run.begin)
            ++first;
        for (std::size_t i = first; i < above.size() && above[i].begin < run.end; ++i) {
            if (above[i].colour == run.colour)
                areas.join(above[i].area, run.area);
        }
    }
}

/// Only the colours with the largest flat areas stay flat.
void keepLargest(PreparedPicture &picture, const std::vector<std::uint32_t> &largest) {
    std::vector<std::uint32_t> flat;
    for (std::uint32_t i = 0; i < picture.colours.size(); ++i) {
        if (largest[i] >= smallestFlat)
            flat.push_back(i);
    }
    if (flat.size() > mostFlatColours) {
        std::ranges::stable_sort(
            flat, [&](std::uint32_t a, std::uint32_t b) { return largest[a] > largest[b]; });
        flat.resize(mostFlatColours);
    }
    for (const std::uint32_t i : flat)
        picture.colours[i].flat = true;
}

} // namespace

void markFlatColours(PreparedPicture &picture) {
    Areas areas;
    std::vector<Run> runs, above;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> seen; // colour, area
    for (int y = 0; y < picture.box.height; ++y) {
        readRow(picture, y, runs);
        joinRows(runs, above, areas);
        for (const Run &run : runs)
            seen.emplace_back(run.colour, run.area);
        runs.swap(above);
    }
    std::vector<std::uint32_t> largest(picture.colours.size());
    for (const auto &[colour, area] : seen)
        largest[colour] = std::max(largest[colour], areas.pixels(area));
    keepLargest(picture, largest);
}

} // namespace gif
