// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <qwindowdefs.h>

/// Whether the desktop blends windows: whether a window that is transparent in places shows what
/// lies beneath it there. The answer can change while the program runs, when a compositing manager
/// is started or ends. Where it is false, a window must be shaped to what it draws.
bool desktopBlendsWindows();

/// Shapes a window of ours to `shape`, in pixels from its upper left corner; an empty region gives
/// the whole window back. The toolkit's own masks lie on whole points, which is too coarse for a
/// thin line on a dense display. Nothing happens on window systems that blend by themselves.
void shapeWindow(WId window, const QRegion &shape);
