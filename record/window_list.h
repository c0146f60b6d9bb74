// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"
#include "record/window_entry.h"

/// How windows become entries of the capture's list, and how the list is read. Values only.

/// Appends the entry of one window to the walk; a window that may not be shared (sharing state 0)
/// gets none, and the next one takes its place in the order.
void WindowListApplierFunction(const WindowDescription &description, WindowListApplierData &walk);

/// Whether the entry is a window of this program: one of its keys or values names the program.
bool isOwnWindow(const WindowEntry &entry);
