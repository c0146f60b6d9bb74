// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "export/export_checks.h"
#include "ui_MainWindow.h"

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

} // namespace

Request AppDelegate::timingRequest() const {
    const auto kept = keptRange();
    Request request{.recordedRate = recording.exactRate(),
                    .speed = ui->comboGIFSpeed->currentData().toDouble()};
    if (kept) {
        request.first = kept->first;
        request.count = kept->count();
    }
    if (ui->radioGIFCustomFPS->isChecked())
        request.chosenRate = ui->comboGIFFPS->currentIndex() + static_cast<int>(lowestRate);
    return request;
}

void AppDelegate::updateGIFSummary() {
    ui->labelGIFThinned->clear();
    ui->labelGIFSummary->clear();
    if (!surroundings.firstFrameFileExists() || ui->comboGIFFPS->currentIndex() < 0)
        return;
    if (hasTooFewFrames(keptRange())) {
        ui->labelGIFSummary->setText(texts.s_IDD_LOW_FRAME_NUMBER());
        return;
    }
    const Request request = timingRequest();
    const std::vector<TimedFrame> gif = timedFrames(request, gifTicks);
    QString summary = summaryOf(gif, gifTicks);
    if (isThinned(request, gifTicks)) {
        ui->labelGIFThinned->setText(qtTrId("IDD_GIF_THINNED"));
        // The WebP is thinned later, if at all.
        const std::vector<TimedFrame> webp = timedFrames(request, webpTicks);
        summary = QStringLiteral("GIF: ") + summary + QStringLiteral(" · WebP: ") +
                  summaryOf(webp, webpTicks);
    }
    ui->labelGIFSummary->setText(summary);
}
