// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/repeating_timer.h"

#include <cstdint>
#include <memory>

/// States of the playback.
enum PlayStatus : std::uint64_t {
    PLAY_STATUS_STOP = 0,
    PLAY_STATUS_PLAY = 1,
    PLAY_STATUS_PAUSE = 2,
};

/// An end of the kept range.
enum class RangeEnd { First, Last };

/// State of the trim editor. `trim/` owns the behaviour.
class TrimFields {
public:
    PlayStatus m_PlayStatus() const { return m_PlayStatus_; }
    void setM_PlayStatus(PlayStatus status) { m_PlayStatus_ = status; }

    /// Lower handle of the range, in percent of the recording.
    float f_Cut_Percent_Menor() const { return f_Cut_Percent_Menor_; }
    void setF_Cut_Percent_Menor(float percent) { f_Cut_Percent_Menor_ = percent; }

    /// Upper handle of the range, in percent of the recording.
    float f_Cut_Percent_Maior() const { return f_Cut_Percent_Maior_; }
    void setF_Cut_Percent_Maior(float percent) { f_Cut_Percent_Maior_ = percent; }

    /// First frame number of the trimmed range; follows from the lower handle, see
    /// `TrimEditor::updateTrimmedRange`.
    std::uint64_t uFirstFrame() const { return uFirstFrame_; }
    void setUFirstFrame(std::uint64_t frame) { uFirstFrame_ = frame; }

    /// Frame number that the upper handle maps to, likewise; it may be one past the recording's
    /// last frame. What is kept of the range is `TrimEditor::keptFrames`.
    std::uint64_t uLastFrame() const { return uLastFrame_; }
    void setULastFrame(std::uint64_t frame) { uLastFrame_ = frame; }

    /// The frame at the playhead; see `TrimEditor::shownFrame`.
    std::uint64_t uCurrentFrame() const { return uCurrentFrame_; }
    void setUCurrentFrame(std::uint64_t frame) { uCurrentFrame_ = frame; }

    /// The end that the preview shows while nothing plays and the playhead was not put anywhere:
    /// that of the handle that was moved last.
    RangeEnd previewedEnd() const { return previewedEnd_; }
    void setPreviewedEnd(RangeEnd end) { previewedEnd_ = end; }

    /// The playback timer; absent unless the preview plays.
    std::unique_ptr<RepeatingTimer> timerPlayRefresh;

private:
    PlayStatus m_PlayStatus_ = PLAY_STATUS_STOP;
    float f_Cut_Percent_Menor_ = 0.0f;
    float f_Cut_Percent_Maior_ = 0.0f;
    std::uint64_t uFirstFrame_ = 0;
    std::uint64_t uLastFrame_ = 0;
    std::uint64_t uCurrentFrame_ = 0;
    RangeEnd previewedEnd_ = RangeEnd::First;
};
