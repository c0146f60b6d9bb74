// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// The platform's wish that the program ends: SIGTERM, SIGINT, and SIGHUP when the terminal closes,
/// unless that was ignored at the start (the end of the desktop session reaches the program through
/// the application object). One instance, made in main before the event
/// loop and kept until the process ends.
class TerminationNotice {
public:
    /// Calls `notify` on this thread whenever its event loop turns and a signal has arrived.
    explicit TerminationNotice(std::function<void()> notify);
    ~TerminationNotice();
    TerminationNotice(const TerminationNotice &) = delete;
    TerminationNotice &operator=(const TerminationNotice &) = delete;

    /// How many signals have arrived: for waits in which no event loop turns.
    static int arrivals();
};
