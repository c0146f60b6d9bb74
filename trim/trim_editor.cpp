// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/trim_editor.h"

#include "record/recorder.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"

namespace {

constexpr int secondsDecimals = 2; // a frame at 60 per second still counts

/// What an export would hold, in the user's words.
QString textOfKept(std::optional<range_rules::Kept> kept, double rate) {
    if (!kept)
        return qtTrId("IDD_RANGE_EMPTY");
    const QString seconds =
        number_text::decimal(static_cast<double>(kept->count()) / rate, secondsDecimals);
    // People count from 1.
    const QString first = number_text::count(kept->first + 1);
    if (kept->count() == 1)
        return qtTrId("IDD_RANGE_ONE").arg(first, seconds);
    return qtTrId("IDD_RANGE_HOLDS", static_cast<int>(kept->count()))
        .arg(first, number_text::count(kept->last + 1), seconds);
}

} // namespace

TrimEditor::TrimEditor(Surroundings &surroundings, Recorder &recorder)
    : surroundings_(surroundings), recorder_(recorder) {
    connect(&recorder_, &Recorder::began, this, &TrimEditor::keepWholeRecording);
    connect(&recorder_, &Recorder::aboutToSaveAgain, this, [this] {
        if (trim.m_PlayStatus() != PLAY_STATUS_STOP)
            OnCutStop();
    });
}

void TrimEditor::enter() {
    isPlayable_ = surroundings_.firstFrameFileExists();
    // The exports read the range, and nothing may ever be painted (a minimised window).
    if (isPlayable_)
        updateTrimmedRange();
    Q_EMIT stateChanged();
}

void TrimEditor::OnCutPlay() {
    if (trim.m_PlayStatus() == PLAY_STATUS_STOP)
        trim.setUCurrentFrame(trim.uFirstFrame());
    trim.setM_PlayStatus(PLAY_STATUS_PLAY);
    trim.timerPlayRefresh.reset();
    trim.timerPlayRefresh = std::make_unique<RepeatingTimer>(1.0 / recorder_.recording.exactRate(),
                                                             [this] { TimerRefreshPlayRoutine(); });
    Q_EMIT stateChanged();
}

void TrimEditor::TimerRefreshPlayRoutine() {
    trim.setUCurrentFrame(trim.uCurrentFrame() + 1);
    const auto kept = keptRange();
    if (!kept || trim.uCurrentFrame() > kept->last)
        trim.setUCurrentFrame(trim.uFirstFrame());
    Q_EMIT viewsChanged();
}

void TrimEditor::OnCutPause() {
    trim.timerPlayRefresh.reset();
    isPlayable_ = true;
    trim.setM_PlayStatus(PLAY_STATUS_PAUSE);
    Q_EMIT stateChanged();
}

void TrimEditor::OnCutStop() {
    trim.timerPlayRefresh.reset();
    isPlayable_ = true;
    trim.setM_PlayStatus(PLAY_STATUS_STOP);
    trim.setPreviewedEnd(RangeEnd::First);
    Q_EMIT viewsChanged();
    Q_EMIT stateChanged();
}

void TrimEditor::keepWholeRecording() {
    trim.setF_Cut_Percent_Menor(0.0f);
    trim.setF_Cut_Percent_Maior(100.0f);
    trim.setPreviewedEnd(RangeEnd::First);
}

void TrimEditor::togglePlayback() {
    if (mayPause())
        OnCutPause();
    else if (mayPlay())
        OnCutPlay();
}

void TrimEditor::updateTrimmedRange() {
    const std::uint64_t frames = recorder_.recording.u_Record_Current_Frame();
    trim.setUFirstFrame(range_rules::frameAt(trim.f_Cut_Percent_Menor(), frames));
    trim.setULastFrame(range_rules::frameAt(trim.f_Cut_Percent_Maior(), frames));
}

std::optional<range_rules::Kept> TrimEditor::keptRange() const {
    return range_rules::keptFrames(trim.uFirstFrame(), trim.uLastFrame(),
                                   recorder_.recording.u_Record_Current_Frame());
}

void TrimEditor::showTrimmedRange(bool recordingExists) {
    // Every drawing comes by here: the text is made again only when it says something else.
    const Shown now{.recordingExists = recordingExists,
                    .kept = keptRange(),
                    .rate = recorder_.recording.exactRate()};
    if (shown_ == now)
        return;
    shown_ = now;
    Q_EMIT rangeTextChanged(recordingExists ? textOfKept(now.kept, now.rate) : QString());
}
