// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

/// Adds up the time that a recording really spent recording, its pauses left out. It reads no clock
/// itself: the caller says what time it is.
class RecordingClock {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// Goes on from `now`; while it runs already, nothing happens.
    void run(TimePoint now) {
        if (!runningSince_)
            runningSince_ = now;
    }

    /// Holds at `now`; while it is held already, nothing happens.
    void hold(TimePoint now) {
        held_ += sinceRun(now);
        runningSince_.reset();
    }

    /// The time recorded up to `now`, in seconds.
    double seconds(TimePoint now) const {
        return std::chrono::duration<double>(held_ + sinceRun(now)).count();
    }

private:
    using Duration = TimePoint::duration;

    Duration sinceRun(TimePoint now) const {
        return runningSince_ ? now - *runningSince_ : Duration::zero();
    }

    Duration held_ = Duration::zero();
    std::optional<TimePoint> runningSince_;
};
