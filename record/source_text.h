// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screen_source.h"

#include <QSize>
#include <QString>

/// What stands in the preview's place as long as a source has no picture: what it waits for, or why
/// there is none. Empty when it is live.
QString sourceStateText(const ScreenSource &source);

/// What was chosen, with the size that frames of it have: "Monitor 2560 × 1440".
QString chosenSourceText(ChosenSource::Kind kind, QSize size);
