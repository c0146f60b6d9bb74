// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/exporter.h"
#include "export/fit_attempt.h"
#include "export/fit_limit.h"
#include "export/fit_search.h"
#include "export/made_file.h"
#include "platform/text_number.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"

#include <QFile>

#include <algorithm>
#include <cmath>

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

/// What was given up, and nothing else.
QString noteAbout(const FitChoice &asked, const FitChoice &best, QSize size, std::uint64_t limit) {
    if (best == asked)
        return {};
    const QString most = fitLimitText(limit);
    const QString width = QString::number(size.width());
    const QString height = QString::number(size.height());
    const bool isSlower = best.rate < asked.rate * sameRate;
    const bool isSmaller = best.scale < 1.0;
    if (isSlower && isSmaller)
        return qtTrId("IDD_STATUS_FITTED").arg(most, width, height, number_text::rate(best.rate));
    if (isSlower)
        return qtTrId("IDD_STATUS_FITTED_RATE")
            .arg(most, number_text::rate(asked.rate), number_text::rate(best.rate));
    if (isSmaller)
        return qtTrId("IDD_STATUS_FITTED_SIZE").arg(most, width, height);
    return qtTrId("IDD_STATUS_FITTED_COLORS").arg(most);
}

} // namespace

MadeFile Exporter::makeFitting(const ExportChoices &choices, const Fitting &fitting) {
    const std::uint64_t limit = *choices.limit.bytes;
    const QString trial = fitting.file + QStringLiteral(".part");
    const FitLadder ladder(fitting.asked, fitting.mayLowerChosen || !choices.rate,
                           fitting.mayLowerChosen || !choices.customSize, fitting.law);
    FitSearch search(ladder, limit, fitting.mostAttempts);
    MadeFile made;
    std::uint64_t smallest = 0;
    std::uint64_t attempts = 0;
    while (const std::optional<double> depth = search.next()) {
        const FitChoice choice = ladder.at(*depth);
        // The bar begins anew each time: without a word that looks like a fault.
        if (++attempts > 1) {
            surroundings_.progress.setCaption(
                qtTrId("IDD_PROGRESS_AGAIN")
                    .arg(number_text::count(attempts), fitLimitText(limit)));
            surroundings_.progress.setValue(0.0);
        }
        // At the end nothing is left to be given up: there the true size is wanted, to be told.
        const bool isLast = *depth >= ladder.end();
        const FitAttempt attempt =
            fitting.attempt(lowered(choices, fitting.asked, choice), choice, trial,
                            isLast ? std::nullopt : std::optional(limit));
        if (attempt.failure || exporting.exportCancelled())
            return {.failure = attempt.failure};
        if (attempt.bytes <= limit) {
            // Each file that fits is better than the one before, which looked in vain for more.
            QFile::remove(fitting.file);
            QFile::rename(trial, fitting.file);
            made = {.failure = {},
                    .frames = attempt.frames,
                    .moves = attempt.moves,
                    .fitNote = noteAbout(fitting.asked, choice, attempt.size, limit)};
        }
        QFile::remove(trial);
        if (isLast)
            smallest = attempt.bytes;
        search.tried(*depth, attempt.bytes);
    }
    if (search.found())
        return made;
    if (!fitting.mayLowerChosen && (choices.rate || choices.customSize))
        made.needsLowering = true;
    else
        made.failure =
            qtTrId("IDD_FIT_IMPOSSIBLE").arg(fitLimitText(limit), number_text::bytes(smallest));
    return made;
}

void Exporter::askToLower(const ExportChoices &choices, std::function<void()> makeAgain) {
    surroundings_.alerts.ask(
        {.message = qtTrId("IDD_FIT_ASK").arg(fitLimitText(*choices.limit.bytes)),
         .detail = qtTrId("IDD_FIT_ASK_DETAIL"),
         .accept = qtTrId("IDD_FIT_KEEP"),
         .destroy = qtTrId("IDD_FIT_LOWER"),
         .cancel = {}},
        [makeAgain = std::move(makeAgain)](Answer answer) {
            if (answer == Answer::Destroy)
                makeAgain();
        });
}
