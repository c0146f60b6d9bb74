// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/display.h"

#include <QByteArray>
#include <QtGlobal>

#include <xcb/xcb.h>

bool displayIsReachable() {
    const QByteArray wanted = qgetenv("QT_QPA_PLATFORM");
    if (!wanted.isEmpty() && !wanted.startsWith("xcb"))
        return true;
    if (wanted.isEmpty() && qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return true;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool reached = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return reached;
}
