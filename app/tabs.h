// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record/recording_fields.h"
#include "trim/trim_fields.h"

#include <QString>

class AppDelegate;

/// The three tabs: their places in the tab view, which counts from 0, who may enter them, and what
/// is prepared when one was entered.
namespace tabs {

inline constexpr int record = 0;
inline constexpr int cut = 1;
inline constexpr int gif = 2;

/// Whether the tab with this identifier may be entered in these states.
bool mayEnter(const QString &identifier, RecordStatus recording, PlayStatus playing);

/// The tab with this identifier has been entered.
void entered(const QString &identifier, AppDelegate &controller);

} // namespace tabs
