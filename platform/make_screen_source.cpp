// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/display.h"
#include "platform/portal/portal_screen_source.h"
#include "platform/window_server_source.h"

std::unique_ptr<ScreenSource> makeScreenSource() {
    if (isWaylandSession())
        return std::make_unique<PortalScreenSource>();
    return std::make_unique<WindowServerSource>(makeWindowServer());
}
