// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/picture_coder.h"

#include "export/gif/entry_lookup.h"
#include "export/gif/nearest_colour.h"
#include "export/gif/picture_job.h"

#include <algorithm>

namespace gif {
namespace {

constexpr std::size_t mostEntries = 256;

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
      canvas_(std::size_t(width) * std::size_t(height)) {}

std::optional<CodedPicture> PictureCoder::code(const PreparedPicture &picture,
                                               const std::stop_token &stop) {
    if (picture.box.isEmpty())
        return std::nullopt;
    const TableInUse own = ownTable(picture);
    std::vector<PictureJob> jobs;
    const auto offer = [&](const TableInUse &table) {
        const Rect box =
            begun_ ? neededBox(picture, table, canvas_, width_, tolerance_) : picture.box;
        for (const auto kept : {PictureJob::Kept::Shown, PictureJob::Kept::Transparent}) {
            if (!box.isEmpty() && (jobs.empty() || table.transparent >= 0))
                jobs.push_back({&picture, &table, canvas_, width_, tolerance_, box, kept, 0});
        }
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
    if (coders_.size() < jobs.size())
        coders_.resize(jobs.size());
    std::vector<PictureAttempt> attempts(jobs.size());
    std::vector<std::future<void>> running;
    for (std::size_t i = 1; i < jobs.size(); ++i) {
        running.push_back(
            workers_.start([&, i] { attempts[i] = attempt(jobs[i], coders_[i], stop); }, true));
    }
    attempts[0] = attempt(jobs[0], coders_[0], stop);
    for (std::future<void> &job : running)
        workers_.wait(job);
    if (stop.stop_requested())
        return {};
    const auto smallest = std::ranges::min_element(attempts, {}, &PictureAttempt::bytes);
    const TableInUse &table = *jobs[std::size_t(smallest - attempts.begin())].table;
    const Rect &box = smallest->coded.box;
    const std::uint8_t *index = smallest->indices.data();
    for (int y = box.y; y < box.y + box.height; ++y) {
        Rgb *row = &canvas_[std::size_t(y) * std::size_t(width_)];
        for (int x = box.x; x < box.x + box.width; ++x, ++index) {
            if (int(*index) != table.transparent)
                row[x] = table.table[*index];
        }
    }
    return std::move(smallest->coded);
}

CodedPicture PictureCoder::unchangedPixel() const {
    LzwCoder coder;
    std::vector<std::uint8_t> index{0}, chosen;
    CodedPicture picture{{0, 0, 1, 1}, {canvas_[0]}, -1, 2, {}};
    picture.data = coder.code(PairChoices(index, index), picture.codeSize, {}, chosen);
    return picture;
}

} // namespace gif
