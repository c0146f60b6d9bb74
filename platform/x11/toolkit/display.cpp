// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/display.h"

#include "platform/x11/toolkit/toolkit_connection.h"

#include <QByteArray>

#include <poll.h>

bool displayIsReachable() {
    const QByteArray wanted = qgetenv("QT_QPA_PLATFORM");
    if (!wanted.isEmpty() && !wanted.startsWith("xcb"))
        return true;
    if (wanted.isEmpty() && qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return true;
    return x11::openDisplay() != nullptr;
}

bool isWaylandSession() {
    return qgetenv("XDG_SESSION_TYPE") == "wayland" ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

bool displayIsGone() {
    xcb_connection_t *connection = x11::toolkitConnection();
    if (!connection)
        return false;
    // What the server sent last may still be waiting to be read; only its end is looked for.
    pollfd state{.fd = xcb_get_file_descriptor(connection), .events = POLLRDHUP, .revents = 0};
    return poll(&state, 1, 0) > 0;
}
