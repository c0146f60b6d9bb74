// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

/// Whether a display server answers: an X server, or a Wayland session whose socket exists. To be
/// asked before the toolkit starts, which aborts the process when there is none. True as well when
/// the toolkit was asked (QT_QPA_PLATFORM) to use something else.
bool displayIsReachable();

/// Whether the session is Wayland's: an X server may well answer in one, but its root window holds
/// only the windows of X clients, and grabs of it show a desktop that nobody sees.
bool isWaylandSession();

/// Whether the display server that the toolkit is connected to has gone. For waits without an event
/// loop, in which the toolkit cannot notice; it ends the process when it does. False where the
/// toolkit has no X connection.
bool displayIsGone();
