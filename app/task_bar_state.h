// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record/recording_fields.h"

class ShellFields;

/// Lets the main window's title and icon tell of a recording, for whoever sees only a task bar.
void showStateInTaskBar(const ShellFields &shell, RecordStatus status, int secondsToGo);
