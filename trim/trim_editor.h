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

    /// Plays on from where it was paused, or where the playhead was put, at the next frame that is
    /// kept; else from the first one.
    void OnCutPlay();
    void OnCutPause();
    void OnCutStop();
    /// The playback tick: the next frame, and the first one again after the last.
    void TimerRefreshPlayRoutine();

    /// The frame in the preview, 0 to the last one: that at the playhead while it plays or is
    /// paused, and while stopped once the playhead was put somewhere; until then the one at the
    /// handle that was moved last.
    std::uint64_t shownFrame() const;
    /// Whether other frames can be shown.
    bool mayShowFrames() const { return isPlayable_; }
    /// Puts the playhead there, at the last frame at most, whether it is kept or not. What plays
    /// goes on from there. Does nothing without a recording.
    void showFrame(std::uint64_t frame);
    /// So many frames on, or back; pauses what plays.
    void step(std::int64_t frames);
    /// The number of a frame and its time, in words for those who do not see the strip.
    QString textOfFrame(std::uint64_t frame) const;

    /// Moves the handles; the frame at the one in hand is shown.
    void moveHandles(float menor, float maior, RangeEnd inHand);
    /// Moves one to the frame that is shown, which stays. They change places where they pass.
    void moveHandleHere(RangeEnd end);

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
    /// Selects the frames between these two, both included and in any order, and shows the latter.
    /// Does nothing while it plays, and without a recording.
    void select(std::uint64_t from, std::uint64_t to);
    void clearSelection();

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

    /// Says under the strip what an export would hold, and the time of the frame that is shown;
    /// nothing without a recording.
    void showTrimmedRange(bool recordingExists);

Q_SIGNALS:
    /// What may be played, paused or stopped has changed.
    void stateChanged();
    /// The views have something else to show: the handles, the playhead, the frame.
    void viewsChanged();
    /// What an export would hold, in the user's words; empty without a recording.
    void rangeTextChanged(const QString &text);
    /// The time of the frame that is shown; empty likewise.
    void timeTextChanged(const QString &text);

private:
    /// What the texts under the strip follow from.
    struct Shown {
        bool recordingExists = false;
        FrameRuns kept = {};
        std::optional<FrameRuns::Run> selection = {};
        std::uint64_t frames = 0;
        std::uint64_t frame = 0;
        double rate = 0;

        bool operator==(const Shown &) const = default;
    };

    std::uint64_t frameCount() const;
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
    bool isPlaced_ = false; // the playhead was put somewhere since it stopped
    std::optional<Shown> shown_;
};
