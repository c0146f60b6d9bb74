// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

/// A repeating timer that keeps time: exact to the nanosecond in its interval, and free of drift.
///
/// Its deadlines are absolute, one interval apart, counted from the start: a tick that comes late
/// does not make the next ones late, and deadlines that were missed whole are skipped, not fired in
/// a burst. It fires on the thread that made it whenever that thread's event loop turns, nested
/// loops (menus, dialogs, moves) included. It ends when it is destroyed, which is allowed inside
/// its own callback.
class RepeatingTimer : public QObject {
    Q_OBJECT

public:
    /// Starts at once; the first tick comes one interval from now. `seconds` is clamped to the
    /// range that the kernel can express (one nanosecond to a hundred years). Should the kernel
    /// refuse a timer, which only happens when the process is out of descriptors, the timer never
    /// fires and the system log says so.
    RepeatingTimer(double seconds, std::function<void()> tick);
    ~RepeatingTimer() override;

    /// Stands still; the part of the interval that was left is what `goOn` begins with. Held or
    /// running already, nothing happens.
    void hold();
    void goOn();

    /// The interval as it was asked for, in seconds.
    double interval() const { return seconds_; }

private:
    void onReadable();

    double seconds_;
    std::function<void()> tick_;
    double left_ = 0.0; // seconds until the next tick, while it is held; 0 while it runs
    int descriptor_ = -1;
    QSocketNotifier *notifier_ = nullptr;
};
