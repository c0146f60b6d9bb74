// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_options.h"
#include "export/exporter.h"
#include "export/loops_text.h"
#include "shell/line_breaks.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

using namespace frame_timing;

namespace {

QString summaryOf(std::span<const TimedFrame> frames, Ticks ticks, double hold) {
    return qtTrId("IDD_GIF_SUMMARY", static_cast<int>(frames.size()))
        .arg(number_text::decimal(seconds(frames, ticks)),
             number_text::rate(rate(frames, ticks, hold)));
}

} // namespace

void ExportOptions::updateGIFSummary() {
    updateEstimate();
    ui_.labelGIFThinned->clear();
    ui_.labelGIFSummary->clear();
    ui_.labelInstructions->setVisible(!isUsable_);
    if (!exporter_.surroundings().firstFrameFileExists() || ui_.comboGIFFPS->currentIndex() < 0) {
        ui_.labelGIFSummary->setText(line_breaks::atPhrases(qtTrId("IDD_RECORD_FIRST")));
        return;
    }
    if (exporter_.hasTooFewFrames()) {
        ui_.labelGIFSummary->setText(
            line_breaks::atPhrases(exporter_.surroundings().texts.s_IDD_LOW_FRAME_NUMBER()));
        return;
    }
    const Request request = exporter_.timingRequest(chosen());
    const std::vector<TimedFrame> gif = timedFrames(request, gifTicks);
    QString summary = summaryOf(gif, gifTicks, request.hold);
    if (isThinned(request, gifTicks)) {
        ui_.labelGIFThinned->setText(qtTrId("IDD_GIF_THINNED"));
        // The WebP is thinned later, if at all.
        const std::vector<TimedFrame> webp = timedFrames(request, webpTicks);
        summary =
            qtTrId("IDD_GIF_WEBP_SUMMARY").arg(summary, summaryOf(webp, webpTicks, request.hold));
    }
    ui_.labelGIFSummary->setText(summary);
}

void ExportOptions::updateWebPLoopsHint() {
    const bool isWrong = loopsTextProblem(loops()) != LoopsTextProblem::None;
    const QString problem =
        isWrong ? qtTrId("IDD_LOOPS_RANGE").arg(number_text::count(mostLoops)) : QString();
    ui_.txtWebPLoops->setAccessibleDescription(problem);
    ui_.labelWebPLoopsHint->setText(problem);
    ui_.labelWebPLoopsHint->setToolTip(problem);
    showHints();
}
