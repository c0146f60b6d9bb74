// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "trim/range_rules.h"
#include "trim/trim_fields.h"

#include <QObject>

#include <cstdint>
#include <optional>

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
    /// The frames that playback and exports show: from `uFirstFrame` to `uLastFrame` or the
    /// recording's last frame, whichever comes first, both included. None when there is no such
    /// frame.
    std::optional<range_rules::Kept> keptRange() const;
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
        std::optional<range_rules::Kept> kept;
        double rate = 0;

        bool operator==(const Shown &) const = default;
    };

    Surroundings &surroundings_;
    Recorder &recorder_;
    bool isPlayable_ = false;
    std::optional<Shown> shown_;
};
