// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

/// A desktop with two windows for the program's pictures, as it looks at a step: lines are written
/// in one window, a bar fills in the other. It goes on for `sceneSteps` and then begins anew.
inline constexpr int sceneSteps = 60;
QImage scene(QSize size, int step);
