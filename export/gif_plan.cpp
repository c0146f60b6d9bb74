// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif_plan.h"

#include "export/frame_store_source.h"

#include <QRegion>

#include <memory>
#include <utility>

namespace {

/// Pixels of the squares in which two frames differ; all of them where that is not known.
double changedPixels(const Image &earlier, const Image &later) {
    double pixels = 0;
    const QRegion whole(QRect(QPoint(), later.size()));
    for (const QRect &rect : later.changesSince(earlier).value_or(whole))
        pixels += double(rect.width()) * rect.height();
    return pixels;
}

} // namespace

SizeForecast forecastOf(std::size_t frames, std::span<const Image> images) {
    std::vector changes(frames, 1.0);
    for (std::size_t frame = 1; frame < images.size(); ++frame)
        changes[frame] = changedPixels(images[frame - 1], images[frame]);
    return SizeForecast(std::move(changes));
}

GifFileJob sampleOf(const GifPlan &plan, std::size_t frame) {
    std::vector<FrameStoreSource::Shown> shown{{plan.images[frame - 1], 2},
                                               {plan.images[frame], 2}};
    return {.source = std::make_unique<FrameStoreSource>(std::move(shown)),
            .sourceSize = plan.job.sourceSize,
            .size = plan.job.size,
            .tolerance = plan.job.tolerance,
            .file = {}};
}
