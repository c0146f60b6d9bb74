// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/null/null_window_server.h"
#include "platform/x11/x11_window_server.h"

#include <QtGlobal>

namespace {

// In a Wayland session an X server may well answer, but its root window holds only the windows
// of X clients, and grabs of it show a desktop that nobody sees.
bool isWaylandSession() {
    return qgetenv("XDG_SESSION_TYPE") == "wayland" ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace

std::unique_ptr<WindowServer> makeWindowServer() {
    if (isWaylandSession())
        return std::make_unique<NullWindowServer>(Obstacle::WaylandSession);
    auto obstacle = Obstacle::NoDisplay;
    if (auto server = X11WindowServer::create({}, obstacle))
        return server;
    return std::make_unique<NullWindowServer>(obstacle);
}
