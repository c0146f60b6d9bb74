// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// Whether a display server answers: an X server, or a Wayland session whose socket exists. To be
/// asked before the toolkit starts, which aborts the process when there is none. True as well when
/// the toolkit was told (QT_QPA_PLATFORM) to use something else.
bool displayIsReachable();
