// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"

#include <QString>

/// Why nothing can be recorded, in one sentence for the user; empty without an obstacle.
QString obstacleText(std::optional<Obstacle> obstacle);
