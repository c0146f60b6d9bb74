// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/exporter.h"
#include "export/fit_search.h"
#include "export/gif_failure.h"
#include "export/gif_plan.h"
#include "export/made_gif.h"
#include "platform/text_number.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"

#include <QFile>

#include <algorithm>
#include <cmath>

/// The best GIF so far.
struct FittingGif {
    MadeGif made;
    FitChoice choice;
    QSize size;
    std::uint64_t smallest = 0; ///< Bytes where everything is given up that may be.
};

namespace {

constexpr double sameRate = 0.999; // of another, but for rounding

/// The choices with what is given up.
ExportChoices lowered(const ExportChoices &asked, const FitChoice &from, const FitChoice &to) {
    ExportChoices choices = asked;
    if (to.rate < from.rate * sameRate)
        choices.rate = to.rate;
    const auto scaled = [&to](const QString &side) {
        const auto pixels = static_cast<double>(integerValue(side));
        return QString::number(std::max(1LL, std::llround(pixels * to.scale)));
    };
    if (to.scale < 1.0) {
        choices.width = scaled(asked.width);
        choices.height = scaled(asked.height);
    }
    return choices;
}

QString noteAbout(const FittingGif &best, const FitChoice &asked, std::uint64_t limit) {
    if (best.choice == asked)
        return {};
    if (best.choice.scale == 1.0 && best.choice.rate >= asked.rate * sameRate)
        return qtTrId("IDD_STATUS_FITTED_COLORS").arg(number_text::bytes(limit));
    return qtTrId("IDD_STATUS_FITTED")
        .arg(number_text::bytes(limit), QString::number(best.size.width()),
             QString::number(best.size.height()), number_text::rate(best.choice.rate));
}

} // namespace

bool Exporter::search(FitSearch &search, const FitLadder &ladder, const ExportChoices &choices,
                      FittingGif &best) {
    const QString file = encoder_arguments::gifFile(surroundings_.shell.s_Export_Folder());
    const QString trial = file + QStringLiteral(".part");
    const FitChoice asked = ladder.at(0);
    while (const std::optional<double> depth = search.next()) {
        const FitChoice choice = ladder.at(*depth);
        GifPlan plan = planGIF(lowered(choices, asked, choice));
        plan.job.tolerance = choice.tolerance;
        plan.job.file = trial;
        // At the end nothing is left to be given up: there the true size is wanted, to be told.
        if (*depth < ladder.end())
            plan.job.sizeLimit = choices.limit.bytes;
        const GifFileResult result = runEncoder(plan.job);
        best.made.failure = gifFailure(result, plan.job, surroundings_.shell.s_Output_Folder());
        if (best.made.failure || exporting.exportCancelled())
            return false;
        std::uint64_t bytes = result.outcome.bytes;
        if (result.isComplete() && bytes <= *choices.limit.bytes) {
            // Each file that fits is better than the one before, which looked in vain for more.
            QFile::remove(file);
            QFile::rename(trial, file);
            best.made.frames = static_cast<std::uint64_t>(result.outcome.frames);
            best.made.moves = result.outcome.pictures > 1;
            best.choice = choice;
            best.size = plan.job.size;
        } else if (!result.isComplete()) {
            SizeForecast forecast = forecastOf(plan);
            forecast.add(1, std::min(bytes, result.firstFrame));
            forecast.add(result.outcome.frames - 1, bytes);
            bytes = std::max(forecast.bytes(), *choices.limit.bytes + 1);
        }
        QFile::remove(trial);
        if (*depth >= ladder.end())
            best.smallest = bytes;
        search.tried(*depth, bytes);
    }
    return true;
}

MadeGif Exporter::makeFittingGIF(const ExportChoices &choices, bool mayLowerChosen) {
    using namespace frame_timing;
    const std::vector<TimedFrame> frames = timedFrames(timingRequest(choices), gifTicks);
    const FitChoice asked{.tolerance = presetTolerance(choices.preset),
                          .rate = rate(frames, gifTicks)};
    FittingGif best;
    const FitLadder ladder(asked, mayLowerChosen || !choices.rate,
                           mayLowerChosen || !choices.customSize);
    FitSearch fit(ladder, *choices.limit.bytes);
    if (!search(fit, ladder, choices, best))
        return best.made;
    if (fit.found())
        best.made.fitNote = noteAbout(best, asked, *choices.limit.bytes);
    else if (!mayLowerChosen && (choices.rate || choices.customSize))
        best.made.needsLowering = true;
    else
        best.made.failure =
            qtTrId("IDD_FIT_IMPOSSIBLE")
                .arg(number_text::bytes(*choices.limit.bytes), number_text::bytes(best.smallest));
    return best.made;
}

void Exporter::askToLower(const ExportChoices &choices) {
    surroundings_.alerts.ask(
        {.message = qtTrId("IDD_FIT_ASK").arg(number_text::bytes(*choices.limit.bytes)),
         .detail = qtTrId("IDD_FIT_ASK_DETAIL"),
         .accept = qtTrId("IDD_FIT_KEEP"),
         .destroy = qtTrId("IDD_FIT_LOWER"),
         .cancel = {}},
        [this](Answer answer) {
            if (answer == Answer::Destroy)
                generateGIF(true);
        });
}
