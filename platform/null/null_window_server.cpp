// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/null/null_window_server.h"

#include <utility>

NullWindowServer::NullWindowServer(QString reason) : reason_(std::move(reason)) {}
