// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/display.h"
#include "platform/null/null_window_server.h"
#include "platform/x11/x11_window_server.h"

std::unique_ptr<WindowServer> makeWindowServer() {
    if (isWaylandSession())
        return std::make_unique<NullWindowServer>(Obstacle::WaylandSession);
    auto obstacle = Obstacle::NoDisplay;
    if (auto server = X11WindowServer::create({}, obstacle))
        return server;
    return std::make_unique<NullWindowServer>(obstacle);
}
