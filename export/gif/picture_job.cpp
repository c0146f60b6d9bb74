// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/picture_job.h"

#include "export/gif/entry_lookup.h"
#include "export/gif/near_choices.h"

#include <algorithm>
#include <bit>

namespace gif {
namespace {

/// The longest phrases are looked for only so far where many entries are near enough.
constexpr int mostVisits = 4096;

/// Whether a pixel may stay what the canvas shows.
class Shown {
public:
    Shown(const PreparedPicture &picture, const TableInUse &table, float tolerance,
          Tolerance &judge)
        : picture_(picture), table_(table), tolerance_(tolerance), judge_(judge) {}

    bool serves(std::uint32_t colour, Rgb shown) {
        if (shown == picture_.colours[colour].rgb || shown == table_.table[table_.nearest[colour]])
            return true;
        return tolerance_ > 0 && judge_.allowsShown(colour, shown);
    }

private:
    const PreparedPicture &picture_;
    const TableInUse &table_;
    float tolerance_;
    Tolerance &judge_;
};

/// Calls f(place in the box, the picture's pixel, what the canvas shows) for the pixels of a job.
template <typename Function> void eachPixel(const PictureJob &job, Function f) {
    const Rect &all = job.picture->box, &box = job.box;
    std::size_t place = 0;
    for (int y = box.y; y < box.y + box.height; ++y) {
        const auto *pixel = &job.picture->pixels[std::size_t(y - all.y) * std::size_t(all.width) +
                                                 std::size_t(box.x - all.x)];
        const Rgb *shown =
            &job.canvas[std::size_t(y) * std::size_t(job.canvasWidth) + std::size_t(box.x)];
        for (int x = 0; x < box.width; ++x)
            f(place++, pixel[x], shown[x]);
    }
}

/// Fills in what each pixel may be when the table's nearest entries are to be written.
void choose(const PictureJob &job, PictureSpace &space) {
    const TableInUse &table = *job.table;
    const EntryLookup lookup(table.table);
    Shown shown(*job.picture, table, job.tolerance, space.tolerance);
    const bool mayLeave = table.transparent >= 0;
    const auto clear = std::uint8_t(table.transparent);
    space.pairs.resize(std::size_t(job.box.width) * std::size_t(job.box.height));
    space.colours.resize(space.pairs.size());
    eachPixel(job, [&](std::size_t place, std::uint32_t colour, Rgb canvas) {
        IndexPair &pair = space.pairs[place];
        space.colours[place] = colour;
        if (colour != PreparedPicture::kept) {
            pair.first = pair.second = table.nearest[colour];
            if (mayLeave && shown.serves(colour, canvas))
                pair.second = clear;
            return;
        }
        pair.first = pair.second = clear;
        if (const int entry = lookup.find(canvas); entry != EntryLookup::absent)
            (job.kept == PictureJob::Kept::Shown ? pair.first : pair.second) = std::uint8_t(entry);
    });
}

} // namespace

std::size_t bytesOf(const CodedPicture &coded) {
    return coded.data.size() + (coded.table.empty() ? 0 : 3 * std::bit_ceil(coded.table.size()));
}

Rect neededBox(const PreparedPicture &picture, const TableInUse &table, std::span<const Rgb> canvas,
               int canvasWidth, float tolerance, Tolerance &judge) {
    Shown shown(picture, table, tolerance, judge);
    const Rect &box = picture.box;
    int left = box.x + box.width, right = -1, top = -1, bottom = -1;
    const std::uint32_t *pixel = picture.pixels.data();
    for (int y = box.y; y < box.y + box.height; ++y) {
        const Rgb *row = &canvas[std::size_t(y) * std::size_t(canvasWidth)];
        for (int x = box.x; x < box.x + box.width; ++x, ++pixel) {
            // Within what is known to be needed nothing is to be found out.
            const bool known = top >= 0 && x >= left && x <= right && bottom == y;
            if (*pixel == PreparedPicture::kept || known || shown.serves(*pixel, row[x]))
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = top < 0 ? y : top;
            bottom = y;
        }
    }
    return top < 0 ? Rect() : Rect{left, top, right - left + 1, bottom - top + 1};
}

CodedPicture attempt(const PictureJob &job, PictureSpace &space, const std::stop_token &stop) {
    const TableInUse &table = *job.table;
    CodedPicture coded;
    coded.box = job.box;
    if (!table.shared)
        coded.table.assign(table.table.begin(), table.table.end());
    coded.transparent = table.transparent;
    space.tolerance.begin(*job.picture, table.table, table.nearest, job.tolerance);
    choose(job, space);
    unsigned highest = job.tolerance > 0 ? unsigned(table.table.size() - 1) : 0;
    for (const IndexPair &pair : space.pairs)
        highest = std::max({highest, unsigned(pair.first), unsigned(pair.second)});
    coded.codeSize = std::max(2, int(std::bit_width(highest)));
    const LzwEffort effort{job.lookAhead, mostVisits};
    if (job.tolerance <= 0) {
        coded.data =
            space.coder.code(PairChoices(space.pairs), coded.codeSize, effort, space.indices, stop);
        return coded;
    }
    std::vector<Perceived> entries;
    for (const Rgb colour : table.table)
        entries.push_back(perceived(colour));
    const NearChoices choices(space.colours, space.pairs,
                              {job.picture->colours, entries, table.transparent}, space.tolerance);
    coded.data = space.coder.code(choices, coded.codeSize, effort, space.indices, stop);
    return coded;
}

} // namespace gif
