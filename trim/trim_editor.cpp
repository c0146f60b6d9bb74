// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/trim_editor.h"

#include "record/recorder.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"
#include "trim/range_rules.h"

namespace {

constexpr int keptDecimals = 1;
constexpr int selectionDecimals = 2; // a frame at 60 per second still counts

double secondsOf(std::uint64_t frames, double rate) { return static_cast<double>(frames) / rate; }

/// What an export would hold, in the user's words.
QString textOfKept(std::uint64_t kept, std::uint64_t frames, double rate) {
    if (kept == 0)
        return qtTrId("IDD_RANGE_EMPTY");
    return qtTrId("IDD_CUT_KEPT", static_cast<int>(frames))
        .arg(number_text::decimal(secondsOf(kept, rate), keptDecimals),
             number_text::decimal(secondsOf(frames, rate), keptDecimals), number_text::count(kept));
}

QString textOfSelection(FrameRuns::Run selection, double rate) {
    return qtTrId("IDD_CUT_SELECTED")
        .arg(number_text::time(secondsOf(selection.first, rate)),
             number_text::time(secondsOf(selection.last + 1, rate)),
             number_text::decimal(secondsOf(selection.count(), rate), selectionDecimals));
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
    if (trim.m_PlayStatus() == PLAY_STATUS_STOP) {
        const FrameRuns kept = keptFrames();
        const auto here = isPlaced_ ? kept.nextFrom(trim.uCurrentFrame()) : std::nullopt;
        trim.setUCurrentFrame(here.value_or(kept.nextFrom(0).value_or(trim.uFirstFrame())));
    }
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
    isPlaced_ = false;
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
    isPlaced_ = false;
    clearSelection();
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
    // Every drawing comes by here: the texts are made again only when they say something else.
    const Shown now{.recordingExists = recordingExists,
                    .kept = keptFrames(),
                    .selection = selection_,
                    .frames = frameCount(),
                    .frame = shownFrame(),
                    .rate = recorder_.recording.exactRate()};
    if (shown_ == now)
        return;
    shown_ = now;
    if (!recordingExists) {
        Q_EMIT rangeTextChanged({});
        Q_EMIT timeTextChanged({});
        return;
    }
    Q_EMIT rangeTextChanged(selection_ ? textOfSelection(*selection_, now.rate)
                                       : textOfKept(now.kept.count(), now.frames, now.rate));
    Q_EMIT timeTextChanged(number_text::time(secondsOf(now.frame, now.rate)));
}
