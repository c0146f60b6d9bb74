// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// Processor time that this process and the display server (the process that TOVAREL_SERVER_PID
/// names) have used so far, all threads together, in seconds. What matters is the difference of two
/// calls; it does not count time spent waiting for a turn, so that other load disturbs it little.
/// The process ends when the server's time cannot be read.
double processorSeconds();
