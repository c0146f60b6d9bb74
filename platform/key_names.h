// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QString>

/// What the user's keyboard calls the Ctrl key ("Ctrl", "Strg"), as the toolkit has it.
inline QString controlKeyName() {
    return QKeySequence(Qt::CTRL | Qt::Key_R)
        .toString(QKeySequence::NativeText)
        .section(QLatin1Char('+'), 0, 0);
}
