// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/exporter.h"
#include "export/fit_attempt.h"
#include "export/fit_search.h"
#include "export/gif/encoder.h"
#include "export/made_file.h"
#include "export/staging.h"
#include "export/webp_sample.h"
#include "platform/text_number.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QFileInfo>

#include <cmath>

using encoder_arguments::WebPCoding;
using encoder_arguments::WebPFrame;

namespace {

// Each takes as long as an export, or less where much is given up: nothing says beforehand that a
// file is going to be too large.
constexpr int mostAttempts = 5;

constexpr float leastTolerance = 0.1f; // that is none at all for a lossy coding

/// The quality of a lossy WebP that differs about as much as the GIF encoder does with that
/// tolerance; none where it must be exact.
std::optional<int> lossyQuality(float tolerance) {
    if (tolerance <= 0)
        return std::nullopt;
    const int small = *encoder_arguments::lossyQuality(GifPreset::Small);
    const float share = tolerance / gif::smallTolerance;
    return 100 - static_cast<int>(std::lround(static_cast<float>(100 - small) * share));
}

} // namespace

FitLaw Exporter::lawOfWebP(Frames frames, const ExportChoices &choices, float tolerance) {
    std::vector<WebPFrame> sample;
    for (const frame_timing::TimedFrame &frame : webpSample(frames))
        sample.push_back(
            {working_folders::frameFile(surroundings_.shell.s_Output_Folder(), frame.source),
             frame.delay});
    const auto bytesAt = [&](std::optional<int> quality) {
        const qint64 exact = sizeOfWebP(choices, sample, {});
        const qint64 lossy =
            quality ? sizeOfWebP(choices, sample, {.lossy = true, .quality = *quality}) : exact;
        return static_cast<double>(std::max<qint64>(std::min(exact, lossy), 1));
    };
    const float least = std::max(tolerance, leastTolerance);
    const double asked = bytesAt(lossyQuality(tolerance));
    const double exactAsCanBe = bytesAt(lossyQuality(least));
    const double smallest = bytesAt(lossyQuality(gif::smallTolerance));
    FitLaw law;
    law.jumpByTolerance = std::max(std::log(asked / exactAsCanBe), 0.0);
    law.fallByTolerance =
        std::max(std::log(exactAsCanBe / smallest), 0.0) / (1 - tolerance / gif::smallTolerance);
    return law;
}

MadeFile Exporter::makeFittingWebP(Frames frames, const ExportChoices &choices,
                                   bool mayLowerChosen) {
    using namespace frame_timing;
    const FitChoice asked{.tolerance = presetTolerance(choices.preset),
                          .rate = rate(frames, webpTicks, choices.hold)};
    FitLaw law;
    if (asked.tolerance < gif::smallTolerance)
        law = lawOfWebP(frames, choices, asked.tolerance);
    const auto attempt = [this](const ExportChoices &lowered, const FitChoice &choice,
                                const QString &trial, std::optional<std::uint64_t>) {
        const std::vector<TimedFrame> wanted = timedFrames(timingRequest(lowered), webpTicks);
        const Frames kept = framesUpToGap(surroundings_.shell.s_Output_Folder(), wanted);
        FitAttempt made;
        made.failure = encodeWebP(
            {kept, lowered, lossyQuality(choice.tolerance), trial, PROGRESS_TYPE_WEBP_TRIAL});
        made.bytes = static_cast<std::uint64_t>(QFileInfo(trial).size());
        made.size = QSize(static_cast<int>(integerValue(lowered.width)),
                          static_cast<int>(integerValue(lowered.height)));
        made.frames = kept.size();
        return made;
    };
    return makeFitting(choices,
                       {.file = encoder_arguments::webpFile(surroundings_.shell.s_Export_Folder()),
                        .asked = asked,
                        .law = law,
                        .mostAttempts = mostAttempts,
                        .mayLowerChosen = mayLowerChosen,
                        .attempt = attempt});
}
