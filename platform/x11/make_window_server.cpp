// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/null/null_window_server.h"

std::unique_ptr<WindowServer> makeWindowServer() {
    return std::make_unique<NullWindowServer>(QString());
}
