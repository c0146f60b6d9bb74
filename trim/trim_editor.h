// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "trim/frame_runs.h"
#include "trim/trim_fields.h"

#include <QObject>

#include <cstdint>
#include <optional>
#include <vector>

class Recorder;
class Surroundings;

/// The desk of the trim editor: which part of the recording is kept, and its playback. Its views
/// draw what is kept here. It knows neither tabs nor controls: it says by signals what has changed.
class TrimEditor : public QObject {
    Q_OBJECT

public:
    /// The references are borrowed and outlive it. A recording that begins is kept whole, and one
    /// that is about to be written again is not played meanwhile.
    TrimEditor(Surroundings &surroundings, Recorder &recorder);

    TrimFields trim;

    Surroundings &surroundings() const { return surroundings_; }
    const Recorder &recorder() const { return recorder_; }

    /// The Cut tab is being entered: looks whether there is a recording to play.
    void enter();
    /// What the three commands may do now.
    bool mayPlay() const { return isPlayable_ && trim.m_PlayStatus() != PLAY_STATUS_PLAY; }
    bool mayPause() const { return trim.m_PlayStatus() == PLAY_STATUS_PLAY; }
    bool mayStop() const { return trim.m_PlayStatus() != PLAY_STATUS_STOP; }

    /// Plays from the first frame of the trimmed range, or on from where it was paused.
    void OnCutPlay();
    void OnCutPause();
    void OnCutStop();
    /// Pauses what plays, plays what does not, if there is something to play.
    void togglePlayback();
    /// The playback tick: the next frame, and the first one again after the last.
    void TimerRefreshPlayRoutine();

    /// Puts the handles to the ends: a new recording is kept whole.
    void keepWholeRecording();
    /// Works out `uFirstFrame` and `uLastFrame` from the handles' percentages.
    void updateTrimmedRange();
    /// The frames that playback and exports show: those of the recording from `uFirstFrame` to
    /// `uLastFrame`, both included, that are not left out.
    FrameRuns keptFrames() const;
    /// The frames that were left out, wherever the handles are. Their files stay.
    const FrameRuns &leftOut() const { return leftOut_; }

    /// The part that is selected for what is done next; none while it plays.
    const std::optional<FrameRuns::Run> &selection() const { return selection_; }
    /// Selects the frames between these two, both included and in any order, and shows the latter
    /// while nothing plays. Does nothing while it plays, and without a recording.
    void select(std::uint64_t from, std::uint64_t to);
    void clearSelection();
    /// The frame that the preview shows in place of a handle's.
    const std::optional<std::uint64_t> &pointedFrame() const { return pointed_; }

    /// Leaves the selected frames out.
    bool mayDelete() const { return selection_.has_value(); }
    void deleteSelection();
    /// Cuts every time in which nothing changes to the chosen length.
    bool mayShorten() const { return mayPlay(); }
    void shortenStills();
    /// That length, in seconds, and those that can be chosen.
    double stillLength() const { return stillLength_; }
    void setStillLength(double seconds) { stillLength_ = seconds; }
    static constexpr double stillLengths[] = {0.5, 1.0, 2.0};
    /// Takes the last of these back, and does it again.
    bool mayUndo() const { return !undo_.empty(); }
    bool mayRedo() const { return !redo_.empty(); }
    void undo();
    void redo();

    /// Says under the preview what an export would hold; nothing without a recording.
    void showTrimmedRange(bool recordingExists);

Q_SIGNALS:
    /// What may be played, paused or stopped has changed.
    void stateChanged();
    /// The views have something else to show: the handles, the playhead, the frame.
    void viewsChanged();
    /// What an export would hold, in the user's words; empty without a recording.
    void rangeTextChanged(const QString &text);

private:
    /// What the text under the preview follows from.
    struct Shown {
        bool recordingExists = false;
        FrameRuns kept = {};
        std::optional<FrameRuns::Run> selection = {};
        double rate = 0;

        bool operator==(const Shown &) const = default;
    };

    void leaveOut(const FrameRuns &leftOut);
    /// What is left out is another now.
    void edited();
    bool showSame(std::uint64_t earlier, std::uint64_t frame) const;

    Surroundings &surroundings_;
    Recorder &recorder_;
    bool isPlayable_ = false;
    FrameRuns leftOut_;
    std::vector<FrameRuns> undo_; // what was left out before, the latest last
    std::vector<FrameRuns> redo_;
    double stillLength_ = stillLengths[1];
    std::optional<FrameRuns::Run> selection_;
    std::optional<std::uint64_t> pointed_;
    std::optional<Shown> shown_;
};
