// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/picture_coder.h"

#include "export/gif/entry_lookup.h"
#include "export/gif/nearest_colour.h"
#include "export/gif/picture_job.h"

#include <algorithm>
#include <exception>

namespace gif {
namespace {

constexpr std::size_t mostEntries = 256;
/// Pictures of up to so many pixels are coded in both ways.
constexpr std::int64_t mostTriedTwice = 1 << 16;
/// Larger ones that change in more than this share of their box, as text that is scrolled does,
/// find what they write in what is shown; where little changes, runs of transparent pixels are
/// better learnt. Within 1 % of trying both, measured on recordings of interfaces.
constexpr double shareThatPrefersShown = 0.1;

bool prefersShown(const PreparedPicture &picture) {
    std::uint64_t written = 0;
    for (const PreparedPicture::Colour &colour : picture.colours)
        written += colour.count;
    return double(written) > shareThatPrefersShown * double(picture.pixels.size());
}

TableInUse ownTable(const PreparedPicture &picture) {
    TableInUse own{picture.table, {}, -1, false};
    for (const PreparedPicture::Colour &colour : picture.colours)
        own.nearest.push_back(colour.nearest);
    if (picture.keepsPixels && own.table.size() < mostEntries)
        own.transparent = int(own.table.size());
    return own;
}

} // namespace

PictureCoder::PictureCoder(int width, int height, float tolerance, Workers &workers)
    : width_(width), tolerance_(tolerance), workers_(workers),
      canvas_(std::size_t(width) * std::size_t(height)), spaces_(1) {}

PictureCoder::~PictureCoder() = default;

std::optional<CodedPicture> PictureCoder::code(const PreparedPicture &picture,
                                               const std::stop_token &stop) {
    if (picture.box.isEmpty())
        return std::nullopt;
    const TableInUse own = ownTable(picture);
    std::vector<PictureJob> jobs;
    const auto offer = [&](const TableInUse &table) {
        spaces_[0].tolerance.begin(picture, table.table, table.nearest, tolerance_);
        const Rect box =
            begun_ ? neededBox(picture, table, canvas_, width_, tolerance_, spaces_[0].tolerance)
                   : picture.box;
        if (box.isEmpty())
            return;
        using Kept = PictureJob::Kept;
        const Kept likely = prefersShown(picture) ? Kept::Shown : Kept::Transparent;
        const Kept other = likely == Kept::Shown ? Kept::Transparent : Kept::Shown;
        jobs.push_back({&picture, &table, canvas_, width_, tolerance_, box, likely, 0});
        if (table.transparent >= 0 && std::int64_t(box.width) * box.height <= mostTriedTwice)
            jobs.push_back({&picture, &table, canvas_, width_, tolerance_, box, other, 0});
    };
    offer(own);
    begun_ = true;
    if (jobs.empty())
        return std::nullopt;
    CodedPicture coded = best(jobs, stop);
    if (coded.data.empty())
        return std::nullopt;
    return coded;
}

/// Tries all jobs, and shows the smallest result on the canvas.
CodedPicture PictureCoder::best(const std::vector<PictureJob> &jobs, const std::stop_token &stop) {
    if (spaces_.size() < jobs.size())
        spaces_.resize(jobs.size());
    std::vector<CodedPicture> attempts(jobs.size());
    std::vector<std::future<void>> running;
    running.reserve(jobs.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        running.push_back(
            workers_.start([&, i] { attempts[i] = attempt(jobs[i], spaces_[i], stop); }, true));
    }
    // When one fails, for want of memory, the others still work with what is here.
    std::exception_ptr failure;
    for (std::future<void> &job : running) {
        try {
            workers_.wait(job);
        } catch (...) {
            failure = std::current_exception();
        }
    }
    if (failure)
        std::rethrow_exception(failure);
    if (stop.stop_requested())
        return {};
    const auto smallest = std::ranges::min_element(attempts, {}, bytesOf) - attempts.begin();
    const PictureJob &job = jobs[std::size_t(smallest)];
    const std::uint8_t *index = spaces_[std::size_t(smallest)].indices.data();
    for (int y = job.box.y; y < job.box.y + job.box.height; ++y) {
        Rgb *row = &canvas_[std::size_t(y) * std::size_t(width_)];
        for (int x = job.box.x; x < job.box.x + job.box.width; ++x, ++index) {
            if (int(*index) != job.table->transparent)
                row[x] = job.table->table[*index];
        }
    }
    return std::move(attempts[std::size_t(smallest)]);
}

CodedPicture PictureCoder::unchangedPixel() const {
    LzwCoder coder;
    const std::vector<IndexPair> index(1);
    std::vector<std::uint8_t> chosen;
    CodedPicture picture{{0, 0, 1, 1}, {canvas_[0]}, -1, 2, {}};
    picture.data = coder.code(PairChoices(index), picture.codeSize, {}, chosen);
    return picture;
}

} // namespace gif
