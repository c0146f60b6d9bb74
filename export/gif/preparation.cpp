// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/preparation.h"

#include "export/gif/colour_table.h"
#include "export/gif/flat_areas.h"
#include "export/gif/histogram.h"
#include "export/gif/nearest_colour.h"

#include <algorithm>
#include <cmath>

namespace gif {
namespace {

Rect clipped(const Rect &rect, int width, int height) {
    const int left = std::max(rect.x, 0), top = std::max(rect.y, 0);
    const int right = std::min(rect.x + rect.width, width);
    const int bottom = std::min(rect.y + rect.height, height);
    return {left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
}

Rect united(const Rect &a, const Rect &b) {
    if (a.isEmpty())
        return b;
    if (b.isEmpty())
        return a;
    const int left = std::min(a.x, b.x), top = std::min(a.y, b.y);
    return {left, top, std::max(a.x + a.width, b.x + b.width) - left,
            std::max(a.y + a.height, b.y + b.height) - top};
}

} // namespace

ChangeReader::ChangeReader(int width, int height)
    : width_(width), height_(height), recorded_(std::size_t(width) * std::size_t(height)) {}

/// The smallest rectangle around what differs within `within`.
Rect ChangeReader::boundsOfChange(const Frame &frame, const Rect &within) const {
    int left = within.x + within.width, right = within.x - 1, top = -1, bottom = -1;
    for (int y = within.y; y < within.y + within.height; ++y) {
        const std::uint32_t *now = frame.pixels + y * frame.stride;
        const Rgb *before = &recorded_[std::size_t(y) * std::size_t(width_)];
        const auto differs = [&](int x) { return (now[x] & rgbBits) != before[x]; };
        int first = within.x, last = within.x + within.width - 1;
        while (first <= last && !differs(first))
            ++first;
        if (first > last)
            continue;
        while (!differs(last))
            --last;
        left = std::min(left, first);
        right = std::max(right, last);
        top = top < 0 ? y : top;
        bottom = y;
    }
    return top < 0 ? Rect() : Rect{left, top, right - left + 1, bottom - top + 1};
}

PreparedPicture ChangeReader::read(const Frame &frame) {
    PreparedPicture picture;
    if (!begun_)
        picture.box = {0, 0, width_, height_};
    else {
        for (const Rect &rect : frame.changed)
            picture.box =
                united(picture.box, boundsOfChange(frame, clipped(rect, width_, height_)));
    }
    const Rect &box = picture.box;
    picture.pixels.resize(std::size_t(box.width) * std::size_t(box.height));
    auto *pixel = picture.pixels.data();
    for (int y = box.y; y < box.y + box.height; ++y) {
        const std::uint32_t *now = frame.pixels + y * frame.stride;
        Rgb *before = &recorded_[std::size_t(y) * std::size_t(width_)];
        for (int x = box.x; x < box.x + box.width; ++x, ++pixel) {
            const Rgb colour = now[x] & rgbBits;
            const bool changed = !begun_ || colour != before[x];
            *pixel = changed ? colour : PreparedPicture::kept;
            picture.keepsPixels |= !changed;
            before[x] = colour;
        }
    }
    begun_ = true;
    return picture;
}

namespace {

/// So many pixels or colours are worked on between two looks at the token that stops.
constexpr std::size_t stopEvery = 1 << 16;
/// Pictures of more colours need all entries that there are.
constexpr std::size_t mostToShrink = 2048;
/// Of the tolerance, what a smaller table may cost each colour.
constexpr float shareForTable = 1.0f;

void countColours(PreparedPicture &picture, const std::stop_token &stop) {
    Histogram histogram;
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
        if (i % stopEvery == 0 && stop.stop_requested())
            return;
        std::uint32_t &pixel = picture.pixels[i];
        if (pixel != PreparedPicture::kept)
            pixel = histogram.add(pixel);
    }
    picture.colours.reserve(histogram.size());
    for (const Histogram::Entry &entry : histogram.entries())
        picture.colours.push_back(
            {.rgb = entry.colour, .count = entry.count, .place = perceived(entry.colour)});
}

void assignNearest(PreparedPicture &picture, const std::stop_token &stop) {
    std::vector<Perceived> places;
    places.reserve(picture.table.size());
    for (const Rgb colour : picture.table)
        places.push_back(perceived(colour));
    const NearestColour search(places);
    std::uint8_t guess = 0;
    for (std::size_t i = 0; i < picture.colours.size(); ++i) {
        if (i % stopEvery == 0 && stop.stop_requested())
            return;
        PreparedPicture::Colour &colour = picture.colours[i];
        const auto found = search.nearest(colour.place, guess);
        colour.nearest = guess = found.index;
        colour.distance = std::sqrt(found.squared);
    }
}

/// Makes the table smaller where that costs no more than part of the tolerance: half the entries
/// are half the bytes, and shorter codes.
void shrinkTable(PreparedPicture &picture, std::span<const WantedColour> wanted, float tolerance,
                 const std::stop_token &stop) {
    const float most = shareForTable * tolerance;
    const std::size_t reserved = picture.keepsPixels ? 1 : 0;
    if (picture.colours.size() > mostToShrink)
        return;
    for (std::size_t size = 128; size >= 4 && !stop.stop_requested(); size /= 2) {
        if (picture.table.size() <= size - reserved)
            continue;
        PreparedPicture smaller;
        smaller.colours = picture.colours;
        smaller.table = makeColourTable(wanted, size - reserved, stop);
        assignNearest(smaller, stop);
        for (const PreparedPicture::Colour &colour : smaller.colours) {
            if (colour.distance > (colour.flat ? 0 : most))
                return;
        }
        picture.colours = std::move(smaller.colours);
        picture.table = std::move(smaller.table);
        picture.exact = false;
    }
}

} // namespace

void chooseColours(PreparedPicture &picture, float tolerance, const std::stop_token &stop) {
    constexpr std::size_t mostEntries = 256;
    if (picture.box.isEmpty())
        return;
    countColours(picture, stop);
    if (stop.stop_requested())
        return;
    markFlatColours(picture);
    const std::size_t limit = picture.keepsPixels ? mostEntries - 1 : mostEntries;
    picture.exact = picture.colours.size() <= limit;
    std::vector<WantedColour> wanted;
    wanted.reserve(picture.colours.size());
    for (const PreparedPicture::Colour &colour : picture.colours)
        wanted.push_back({colour.rgb, colour.count, colour.flat});
    picture.table = makeColourTable(wanted, limit, stop);
    if (picture.exact) {
        for (std::size_t i = 0; i < picture.colours.size(); ++i)
            picture.colours[i].nearest = std::uint8_t(i);
    } else
        assignNearest(picture, stop);
    if (tolerance > 0)
        shrinkTable(picture, wanted, tolerance, stop);
}

} // namespace gif
