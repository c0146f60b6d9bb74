// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"
#include "record/window_entry.h"

#include <QRect>

#include <span>

/// How windows become entries of the capture's list, and how the list is read. Values only.

/// Appends the entry of one window to the walk; a window that may not be shared (sharing state 0)
/// gets none, and the next one takes its place in the order.
void WindowListApplierFunction(const WindowDescription &description, WindowListApplierData &walk);

/// Whether nothing of `place` (desktop pixels) can be seen of the windows of this program that meet
/// it: opaque windows of others in front of them cover it.
bool isCovered(std::span<const WindowDescription> frontToBack, const QRect &place);

/// Whether the entry is a window of this program: one of its keys or values names the program.
bool isOwnWindow(const WindowEntry &entry);
