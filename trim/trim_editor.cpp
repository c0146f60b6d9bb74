// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/trim_editor.h"

#include "record/recorder.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"
#include "trim/range_rules.h"

namespace {

constexpr int secondsDecimals = 2; // a frame at 60 per second still counts

QString secondsText(std::uint64_t frames, double rate) {
    return number_text::decimal(static_cast<double>(frames) / rate, secondsDecimals);
}

/// What an export would hold, in the user's words.
QString textOfKept(const FrameRuns &kept, double rate) {
    if (kept.isEmpty())
        return qtTrId("IDD_RANGE_EMPTY");
    const QString seconds = secondsText(kept.count(), rate);
    // People count from 1.
    const QString first = number_text::count(kept.first() + 1);
    if (kept.count() == 1)
        return qtTrId("IDD_RANGE_ONE").arg(first, seconds);
    return qtTrId("IDD_RANGE_HOLDS", static_cast<int>(kept.count()))
        .arg(first, number_text::count(kept.last() + 1), seconds);
}

QString textOfSelection(FrameRuns::Run selection, double rate) {
    return qtTrId("IDD_CUT_SELECTED")
        .arg(number_text::count(selection.first + 1), number_text::count(selection.last + 1),
             secondsText(selection.count(), rate));
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
    clearSelection();
    if (trim.m_PlayStatus() == PLAY_STATUS_STOP)
        trim.setUCurrentFrame(keptFrames().nextFrom(0).value_or(trim.uFirstFrame()));
    trim.setM_PlayStatus(PLAY_STATUS_PLAY);
    trim.timerPlayRefresh.reset();
    trim.timerPlayRefresh = std::make_unique<RepeatingTimer>(1.0 / recorder_.recording.exactRate(),
                                                             [this] { TimerRefreshPlayRoutine(); });
    Q_EMIT stateChanged();
}

void TrimEditor::TimerRefreshPlayRoutine() {
    const FrameRuns kept = keptFrames();
    const auto next = kept.nextFrom(trim.uCurrentFrame() + 1);
    if (next)
        trim.setUCurrentFrame(*next);
    else
        trim.setUCurrentFrame(kept.isEmpty() ? trim.uFirstFrame() : kept.first());
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
    clearSelection();
    Q_EMIT viewsChanged();
    Q_EMIT stateChanged();
}

void TrimEditor::keepWholeRecording() {
    trim.setF_Cut_Percent_Menor(0.0f);
    trim.setF_Cut_Percent_Maior(100.0f);
    trim.setPreviewedEnd(RangeEnd::First);
    leftOut_ = {};
    undo_.clear();
    redo_.clear();
    clearSelection();
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

FrameRuns TrimEditor::keptFrames() const {
    if (trim.uLastFrame() < trim.uFirstFrame())
        return {};
    return FrameRuns::of(0, recorder_.recording.u_Record_Current_Frame())
        .within({trim.uFirstFrame(), trim.uLastFrame()})
        .without(leftOut_);
}

void TrimEditor::showTrimmedRange(bool recordingExists) {
    // Every drawing comes by here: the text is made again only when it says something else.
    const Shown now{.recordingExists = recordingExists,
                    .kept = keptFrames(),
                    .selection = selection_,
                    .rate = recorder_.recording.exactRate()};
    if (shown_ == now)
        return;
    shown_ = now;
    QString text;
    if (recordingExists)
        text = selection_ ? textOfSelection(*selection_, now.rate) : textOfKept(now.kept, now.rate);
    Q_EMIT rangeTextChanged(text);
}
