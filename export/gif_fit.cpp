// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/exporter.h"
#include "export/fit_attempt.h"
#include "export/fit_search.h"
#include "export/gif_failure.h"
#include "export/gif_plan.h"
#include "export/made_file.h"
#include "shell/surroundings.h"

#include <algorithm>

namespace {

constexpr int mostAttempts = 6; // those that are too large are given up on the way

} // namespace

MadeFile Exporter::makeFittingGIF(const ExportChoices &choices, bool mayLowerChosen) {
    using namespace frame_timing;
    const FitChoice asked{
        .tolerance = presetTolerance(choices.preset),
        .rate = rate(timedFrames(timingRequest(choices), gifTicks), gifTicks, choices.hold)};
    const auto attempt = [this](const ExportChoices &lowered, const FitChoice &choice,
                                const QString &trial, std::optional<std::uint64_t> sizeLimit) {
        GifPlan plan = planGIF(lowered);
        plan.job.tolerance = choice.tolerance;
        plan.job.file = trial;
        plan.job.sizeLimit = sizeLimit;
        const GifFileResult result = runEncoder(plan.job);
        FitAttempt made{.failure =
                            gifFailure(result, plan.job, surroundings_.shell.s_Output_Folder()),
                        .bytes = result.outcome.bytes,
                        .size = plan.job.size,
                        .frames = static_cast<std::uint64_t>(result.outcome.frames),
                        .moves = result.outcome.pictures > 1};
        if (!made.failure && !result.isComplete() && sizeLimit) {
            SizeForecast forecast = forecastOf(plan.job.frames, plan.images);
            forecast.add(1, std::min(made.bytes, result.firstFrame));
            forecast.add(result.outcome.frames - 1, made.bytes);
            made.bytes = std::max(forecast.bytes(), *sizeLimit + 1);
        }
        return made;
    };
    return makeFitting(choices,
                       {.file = encoder_arguments::gifFile(surroundings_.shell.s_Export_Folder()),
                        .asked = asked,
                        .law = FitLaw(),
                        .mostAttempts = mostAttempts,
                        .mayLowerChosen = mayLowerChosen,
                        .attempt = attempt});
}
