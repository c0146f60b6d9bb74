// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QAction>

/// A command that has a button and a menu item: both can be used, or neither can.
inline void enableCommand(QAbstractButton *button, QAction *item, bool enabled) {
    button->setEnabled(enabled);
    item->setEnabled(enabled);
}
