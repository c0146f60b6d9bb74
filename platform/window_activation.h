// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Brings one of our windows forward because the user asked for it somewhere else, for instance by
/// starting the program again. The toolkit's own request would be taken for a window that pushes
/// itself forward, and refused.
///
/// `window` is the native number of a top-level window; without an X server nothing happens.
void bringToFront(quintptr window);
