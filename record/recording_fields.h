// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/tile_store.h"
#include "platform/repeating_timer.h"
#include "record/memory_budget.h"
#include "record/rates.h"
#include "record/recording_clock.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// States of a recording.
enum RecordStatus : std::uint64_t {
    RECORD_STATUS_STOP = 0,
    RECORD_STATUS_RECORD = 1,
    RECORD_STATUS_PAUSE = 2,
};

/// The first start's capture rate, in frames per second; later ones begin with the last choice.
inline constexpr std::uint64_t defaultFramesPerSecond = 15;

/// State of the recording and its frame store. `record/` owns the behaviour.
class RecordingFields {
public:
    RecordStatus m_RecordStatus() const { return m_RecordStatus_; }
    void setM_RecordStatus(RecordStatus status) { m_RecordStatus_ = status; }

    /// Capture rate in frames per second, 1 to 60, as the user chose it; sets the capture timer's
    /// interval.
    std::uint64_t u_FPS() const { return u_FPS_; }
    void setU_FPS(std::uint64_t rate) { u_FPS_ = rate; }

    /// Rate of the last recording in frames per second, as it is shown: a whole number, 1 to 60.
    /// Setting it makes it the exact rate as well, if it is one.
    std::uint64_t u_Record_Current_FPS() const { return u_Record_Current_FPS_; }
    void setU_Record_Current_FPS(std::uint64_t rate) {
        u_Record_Current_FPS_ = rate;
        exactRate_ = static_cast<double>(std::max(rate, lowestRate));
    }

    /// The same rate unrounded, which every length and delay goes by; always above 0.
    double exactRate() const { return exactRate_; }
    void setExactRate(double rate) {
        exactRate_ = rate;
        u_Record_Current_FPS_ = shownRate(rate);
    }

    /// Number of frames stored so far; after Stop the recording's frame count.
    std::uint64_t u_Record_Current_Frame() const { return u_Record_Current_Frame_; }
    void setU_Record_Current_Frame(std::uint64_t count) { u_Record_Current_Frame_ = count; }

    /// Frames of the recording that were stored since its last one-second tick.
    std::uint64_t i_debug_number_of_view_refresh() const { return i_debug_number_of_view_refresh_; }
    void setI_debug_number_of_view_refresh(std::uint64_t count) {
        i_debug_number_of_view_refresh_ = count;
    }

    /// Sum of the per-second frame counts of the recording.
    std::int64_t i_Actual_FPS_while_Recording() const { return i_Actual_FPS_while_Recording_; }
    void setI_Actual_FPS_while_Recording(std::int64_t sum) { i_Actual_FPS_while_Recording_ = sum; }

    /// One-second ticks that fell into the recording.
    std::uint64_t u_number_of_seconds() const { return u_number_of_seconds_; }
    void setU_number_of_seconds(std::uint64_t seconds) { u_number_of_seconds_ = seconds; }

    /// The frame store: frames of the current or last recording, in order. Absent until the first
    /// recording starts.
    std::optional<std::vector<Image>> array_Images;

    /// What the frames are kept in.
    TileStore store;

    /// When to pause for want of memory, what there is of it, and how fast the frames take it, in
    /// bytes a second.
    MemoryBudget budget;
    std::function<std::optional<MemoryState>()> memory = [] { return machineMemory(); };
    double growth = 0;
    std::size_t heldBefore = 0; // a second ago, in bytes

    /// The time spent in the recording state, pauses left out.
    RecordingClock clock;

    /// The capture timer; absent while the Record tab is not shown.
    std::unique_ptr<RepeatingTimer> timerVideoRefresh;

    /// The one-second timer: starts with a recording and holds while it is paused. Absent while
    /// the Record tab is not shown.
    std::unique_ptr<RepeatingTimer> timerdebug1Second;

private:
    RecordStatus m_RecordStatus_ = RECORD_STATUS_STOP;
    std::uint64_t u_FPS_ = 0;
    std::uint64_t u_Record_Current_FPS_ = 0;
    double exactRate_ = static_cast<double>(lowestRate);
    std::uint64_t u_Record_Current_Frame_ = 0;
    std::uint64_t i_debug_number_of_view_refresh_ = 0;
    std::int64_t i_Actual_FPS_while_Recording_ = 0;
    std::uint64_t u_number_of_seconds_ = 0;
};
