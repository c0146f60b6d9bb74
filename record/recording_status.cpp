// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "record/measured_rate.h"
#include "record/recording_indicator.h"
#include "region/region_in_grab.h"
#include "ui_MainWindow.h"

#include <QLocale>

#include <algorithm>
#include <optional>

namespace {

constexpr int secondsPerMinute = 60;
constexpr int decimal = 10;

/// How much the last second counts in the growth that is shown.
constexpr double weightOfASecond = 0.25;
/// Beyond this nobody asks how long memory lasts, in seconds.
constexpr double longest = 24 * 60 * 60;

/// "1:05", minutes and seconds.
QString minutesAndSeconds(double passed) {
    const auto seconds = static_cast<std::int64_t>(passed);
    return QStringLiteral("%1:%2")
        .arg(seconds / secondsPerMinute)
        .arg(seconds % secondsPerMinute, 2, decimal, QLatin1Char('0'));
}

} // namespace

void AppDelegate::showRecordingState() {
    ui->recordingIndicator->setState(recording.m_RecordStatus());
    showStateInTaskBar();
    if (recording.m_RecordStatus() == RECORD_STATUS_STOP)
        return;
    const RecordingCounts counts = recordingCounts();
    // No rate is shown before there is one.
    const QString rate = counts.storedFrames == 0
                             ? QStringLiteral("–")
                             : QString::number(shownRate(measuredRate(counts, recording.u_FPS())));
    QString text = qtTrId("IDD_RECORDING_FIGURES")
                       .arg(minutesAndSeconds(counts.passedSeconds),
                            QString::number(counts.storedFrames), rate);
    const QString held =
        QLocale().formattedDataSize(static_cast<qint64>(recording.store.bytesHeld()), 1);
    const auto memory = recording.memory();
    const auto left =
        memory ? recording.budget.secondsLeft(*memory, recording.growth) : std::optional<double>();
    text += QStringLiteral(" · ") +
            (left && *left < longest
                 ? qtTrId("IDD_RECORDING_MEMORY_LASTS").arg(held, minutesAndSeconds(*left))
                 : qtTrId("IDD_RECORDING_MEMORY").arg(held));
    surroundings.showStatus(text);
}

void AppDelegate::watchMemory() {
    const std::size_t held = recording.store.bytesHeld();
    const double grown = static_cast<double>(held) - static_cast<double>(recording.heldBefore);
    // Compressing gives back what was taken, a little later: the figure must not jump with it.
    recording.growth += (std::max(grown, 0.0) - recording.growth) * weightOfASecond;
    recording.heldBefore = held;
    const auto memory = recording.memory();
    if (!memory || !recording.budget.isSpent(*memory)) {
        showRecordingState();
        return;
    }
    OnRecordPause(nullptr);
    surroundings.showStatus(
        qtTrId("IDD_PAUSED_FOR_MEMORY")
            .arg(QLocale().formattedDataSize(static_cast<qint64>(memory->available), 1)));
}

void AppDelegate::showCaptureMode() {
    QString text = qtTrId("IDD_MODE_FULL_SCREEN");
    if (region.i_Type_Screen_Capture() == CAPTURE_REGION) {
        // What a frame will hold: its size, and its place counted from the upper left corner.
        const QRect area = regionInGrab(*this);
        text = qtTrId("IDD_MODE_REGION")
                   .arg(area.width())
                   .arg(area.height())
                   .arg(area.x())
                   .arg(area.y());
    }
    if (ui->labelCaptureMode->text() != text)
        ui->labelCaptureMode->setText(text);
    const QString rate = qtTrId("IDD_CAPTURE_RATE").arg(recording.u_FPS());
    if (ui->labelCaptureRate->text() != rate)
        ui->labelCaptureRate->setText(rate);
}
