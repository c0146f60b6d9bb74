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
constexpr int mostVisits = 1000;

/// How far from its colour a pixel may stay what the canvas shows.
class Shown {
public:
    Shown(const PreparedPicture &picture, const TableInUse &table, float tolerance)
        : picture_(picture), table_(table), tolerance_(tolerance) {}

    bool serves(std::uint32_t colour, Rgb shown) {
        const PreparedPicture::Colour &wanted = picture_.colours[colour];
        if (shown == wanted.rgb || shown == table_.table[table_.nearest[colour]])
            return true;
        if (tolerance_ <= 0)
            return false;
        if (colour != lastColour_ || shown != lastShown_) {
            lastColour_ = colour;
            lastShown_ = shown;
            const float limit = wanted.flat ? tolerance_ / 2 : tolerance_;
            last_ = colourDifference(wanted.rgb, shown) <= limit;
        }
        return last_;
    }

private:
    const PreparedPicture &picture_;
    const TableInUse &table_;
    float tolerance_;
    std::uint32_t lastColour_ = PreparedPicture::kept;
    Rgb lastShown_ = 0;
    bool last_ = false;
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

/// What each pixel may be when the table's nearest entries are to be written.
std::vector<NearChoices::Pixel> choicesOf(const PictureJob &job) {
    const TableInUse &table = *job.table;
    const EntryLookup lookup(table.table);
    Shown shown(*job.picture, table, job.tolerance);
    const bool mayLeave = table.transparent >= 0;
    const auto clear = std::uint8_t(table.transparent);
    std::vector<NearChoices::Pixel> pixels(std::size_t(job.box.width) *
                                           std::size_t(job.box.height));
    eachPixel(job, [&](std::size_t place, std::uint32_t colour, Rgb canvas) {
        NearChoices::Pixel &pixel = pixels[place];
        pixel.colour = colour;
        if (colour != PreparedPicture::kept) {
            pixel.first = pixel.second = table.nearest[colour];
            if (mayLeave && shown.serves(colour, canvas))
                pixel.second = clear;
            return;
        }
        const int entry = job.kept == PictureJob::Kept::OnlyTransparent ? EntryLookup::absent
                                                                        : lookup.find(canvas);
        pixel.first = pixel.second = clear;
        if (entry != EntryLookup::absent)
            (job.kept == PictureJob::Kept::Shown ? pixel.first : pixel.second) =
                std::uint8_t(entry);
    });
    return pixels;
}

std::vector<std::uint8_t> codePairs(const PictureJob &job,
                                    std::span<const NearChoices::Pixel> pixels, int codeSize,
                                    LzwCoder &coder, std::vector<std::uint8_t> &indices,
                                    const std::stop_token &stop) {
    std::vector<std::uint8_t> first, second;
    first.reserve(pixels.size());
    second.reserve(pixels.size());
    for (const NearChoices::Pixel &pixel : pixels) {
        first.push_back(pixel.first);
        second.push_back(pixel.second);
    }
    return coder.code(PairChoices(first, second), codeSize, {.lookAhead = job.lookAhead}, indices,
                      stop);
}

std::vector<std::uint8_t> codeNear(const PictureJob &job,
                                   std::span<const NearChoices::Pixel> pixels, int codeSize,
                                   LzwCoder &coder, std::vector<std::uint8_t> &indices,
                                   const std::stop_token &stop) {
    std::vector<Perceived> entries;
    for (const Rgb colour : job.table->table)
        entries.push_back(perceived(colour));
    Tolerance tolerance(*job.picture, job.table->table, job.table->nearest, job.tolerance);
    const NearChoices choices(pixels, {job.picture->colours, entries, job.table->transparent},
                              tolerance);
    return coder.code(choices, codeSize, {.lookAhead = job.lookAhead, .mostVisits = mostVisits},
                      indices, stop);
}

} // namespace

std::size_t PictureAttempt::bytes() const {
    return coded.data.size() + 3 * std::bit_ceil(coded.table.size());
}

Rect neededBox(const PreparedPicture &picture, const TableInUse &table, std::span<const Rgb> canvas,
               int canvasWidth, float tolerance) {
    Shown shown(picture, table, tolerance);
    const Rect &box = picture.box;
    int left = box.x + box.width, right = -1, top = -1, bottom = -1;
    const std::uint32_t *pixel = picture.pixels.data();
    for (int y = box.y; y < box.y + box.height; ++y) {
        const Rgb *row = &canvas[std::size_t(y) * std::size_t(canvasWidth)];
        for (int x = box.x; x < box.x + box.width; ++x, ++pixel) {
            if (*pixel == PreparedPicture::kept || shown.serves(*pixel, row[x]))
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = top < 0 ? y : top;
            bottom = y;
        }
    }
    return top < 0 ? Rect() : Rect{left, top, right - left + 1, bottom - top + 1};
}

PictureAttempt attempt(const PictureJob &job, LzwCoder &coder, const std::stop_token &stop) {
    const TableInUse &table = *job.table;
    PictureAttempt result;
    result.coded.box = job.box;
    if (!table.shared)
        result.coded.table.assign(table.table.begin(), table.table.end());
    result.coded.transparent = table.transparent;
    const std::vector<NearChoices::Pixel> pixels = choicesOf(job);
    unsigned highest = 0;
    for (const NearChoices::Pixel &pixel : pixels)
        highest = std::max({highest, unsigned(pixel.first), unsigned(pixel.second)});
    if (job.tolerance > 0)
        highest = std::max(highest, unsigned(table.table.size() - 1));
    result.coded.codeSize = std::max(2, int(std::bit_width(highest)));
    const auto code = job.tolerance > 0 ? codeNear : codePairs;
    result.coded.data = code(job, pixels, result.coded.codeSize, coder, result.indices, stop);
    return result;
}

} // namespace gif
