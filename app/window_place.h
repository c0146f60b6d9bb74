// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

class QMainWindow;

/// The main window's place and size, from one start to the next.
namespace window_place {

/// Puts a window that is not shown yet where it was the last time. A screen that is gone or smaller
/// now gets it as the desktop places it, and no larger than that screen.
void recall(QMainWindow &window);

void remember(const QMainWindow &window);

} // namespace window_place
