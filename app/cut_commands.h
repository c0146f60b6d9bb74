// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command.h"

#include <vector>

class AppDelegate;

/// The part of the table of commands that belongs to the Cut tab: playback, frames, handles, and
/// what is left out.
std::vector<Command> cutCommands(AppDelegate &controller);
