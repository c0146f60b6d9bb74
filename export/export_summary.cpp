// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_options.h"
#include "export/exporter.h"
#include "export/loops_text.h"
#include "shell/surroundings.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include <cmath>

using namespace frame_timing;

namespace {

constexpr int decimals = 1;

/// A rate with a decimal, where it has one.
QString rateText(double rate) {
    const double tenths = std::round(rate * 10.0);
    return QLocale().toString(tenths / 10.0, 'f', std::fmod(tenths, 10.0) == 0.0 ? 0 : decimals);
}

QString summaryOf(std::span<const TimedFrame> frames, Ticks ticks) {
    const QLocale locale;
    return qtTrId("IDD_GIF_SUMMARY")
        .arg(locale.toString(qulonglong{frames.size()}),
             locale.toString(seconds(frames, ticks), 'f', decimals), rateText(rate(frames, ticks)));
}

QString problemText(LoopsTextProblem problem) {
    switch (problem) {
    case LoopsTextProblem::None:
        break;
    case LoopsTextProblem::NotNumber:
        return qtTrId("IDD_LOOPS_NOT_NUMBER");
    case LoopsTextProblem::Negative:
        return qtTrId("IDD_LOOPS_NEGATIVE");
    case LoopsTextProblem::TooLarge:
        return qtTrId("IDD_LOOPS_TOO_LARGE");
    }
    return {};
}

} // namespace

void ExportOptions::updateGIFSummary() {
    updateEstimate();
    ui_.labelGIFThinned->clear();
    ui_.labelGIFSummary->clear();
    if (!exporter_.surroundings().firstFrameFileExists() || ui_.comboGIFFPS->currentIndex() < 0)
        return;
    if (exporter_.hasTooFewFrames()) {
        ui_.labelGIFSummary->setText(exporter_.surroundings().texts.s_IDD_LOW_FRAME_NUMBER());
        return;
    }
    const Request request = exporter_.timingRequest(chosen());
    const std::vector<TimedFrame> gif = timedFrames(request, gifTicks);
    QString summary = summaryOf(gif, gifTicks);
    if (isThinned(request, gifTicks)) {
        ui_.labelGIFThinned->setText(qtTrId("IDD_GIF_THINNED"));
        // The WebP is thinned later, if at all.
        const std::vector<TimedFrame> webp = timedFrames(request, webpTicks);
        summary = QStringLiteral("GIF: ") + summary + QStringLiteral(" · WebP: ") +
                  summaryOf(webp, webpTicks);
    }
    ui_.labelGIFSummary->setText(summary);
}

void ExportOptions::updateWebPLoopsHint() {
    const QString problem = problemText(loopsTextProblem(ui_.txtWebPLoops->text()));
    ui_.txtWebPLoops->setAccessibleDescription(problem);
    const QString hint = problem.isEmpty() ? qtTrId("IDD_WEBP_LOOPS_HINT") : problem;
    ui_.labelWebPLoopsHint->setText(hint);
    ui_.labelWebPLoopsHint->setToolTip(hint);
}
