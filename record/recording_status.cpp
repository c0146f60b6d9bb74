// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/screen_source.h"
#include "record/recorder.h"
#include "region/region_chooser.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int secondsPerMinute = 60;
constexpr int decimal = 10;

/// How much the last second counts in the growth that is shown.
constexpr double weightOfASecond = 0.25;
/// Beyond this nobody asks how long memory lasts, in seconds; the first seconds of a recording say
/// little about it.
constexpr double longest = 60 * 60;

/// "1:05", minutes and seconds.
QString minutesAndSeconds(double passed) {
    const auto seconds = static_cast<std::int64_t>(passed);
    return QStringLiteral("%1:%2")
        .arg(seconds / secondsPerMinute)
        .arg(seconds % secondsPerMinute, 2, decimal, QLatin1Char('0'));
}

/// Whole minutes that are left, and never none: then a recording pauses.
QString minutesLeft(double seconds) {
    return QString::number(std::max(1, static_cast<int>(seconds) / secondsPerMinute));
}

} // namespace

void Recorder::showRecordingState() {
    Q_EMIT stateChanged();
    if (recording.m_RecordStatus() == RECORD_STATUS_STOP)
        return;
    const RecordingCounts counts = recordingCounts();
    // No rate is shown before there is one.
    const QString rate = counts.storedFrames == 0
                             ? QStringLiteral("–")
                             : number_text::rate(measuredRate(counts, recording.u_FPS()));
    QString text = qtTrId("IDD_RECORDING_FIGURES")
                       .arg(minutesAndSeconds(counts.passedSeconds),
                            number_text::count(counts.storedFrames), rate);
    const QString held = number_text::bytes(recording.store.bytesHeld());
    const auto memory = recording.memory();
    const auto left =
        memory ? recording.budget.secondsLeft(*memory, recording.growth) : std::optional<double>();
    text += QStringLiteral(" · ") +
            (left && *left < longest
                 ? qtTrId("IDD_RECORDING_MEMORY_LASTS").arg(held, minutesLeft(*left))
                 : qtTrId("IDD_RECORDING_MEMORY").arg(held));
    if (!fitted_.isEmpty())
        text += QStringLiteral(" · ") + qtTrId("IDD_SOURCE_RESIZED");
    surroundings_.showStatus(text);
}

void Recorder::watchMemory() {
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
    OnRecordPause();
    steppingAside_.comeBack(); // to say it
    surroundings_.showStatus(
        qtTrId("IDD_PAUSED_FOR_MEMORY").arg(number_text::bytes(memory->available)));
}

void Recorder::updateCaptureMode() {
    CaptureMode mode{.region = chooser_.isRegionRecorded(),
                     .monitor = chooser_.monitor(),
                     .area = chooser_.isPartRecorded() ? chooser_.place().inGrab : QRect(),
                     .rate = recording.u_FPS(),
                     .userChooses = source().capabilities().asksUser,
                     .chosen = {},
                     .size = {}};
    if (const auto chosen = source().chosen()) {
        mode.chosen = chosen->kind;
        mode.size = capture.imgScreenCapture().size();
    }
    if (mode == mode_)
        return;
    mode_ = mode;
    Q_EMIT captureModeChanged(mode_);
}
