// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include <functional>
#include <vector>

class QAbstractButton;
class QAction;
class QObject;

/// A command of the program: everything that is to say of it, in one place. Either the button or
/// the menu item may be missing; both do the same and can be used, or cannot, alike.
struct Command {
    QAction *item = nullptr;
    QAbstractButton *button = nullptr;
    /// Of the menu item. A button without an icon shows it, one with an icon has it as its tool tip
    /// and as its name for those who cannot see the icon.
    QString text;
    QString face = {};          ///< What the button shows where its text has no room.
    QString tip = {};           ///< The button's tool tip, where it is not text and shortcut.
    const char *icon = nullptr; ///< The button's drawing, by its name in the resources.
    QColor accent = {};         ///< Of the drawing, where it has a colour of its own.
    /// Of the menu item, in portable text ("Ctrl+R"). Of several, with "; " between them, menu and
    /// tip show the first.
    const char *shortcut = nullptr;
    /// Without one, whatever else works the controls has named them, too.
    std::function<void()> action = {};
    /// Whether it can be used now. Without one it always can.
    std::function<bool()> enabled = {};
    /// Of a switch, which stays pressed while it is on: whether it is.
    std::function<bool()> checked = {};
    /// It runs a dialog, so it is started from the event loop: assistive technology waits for the
    /// answer to its press, and would wait until the dialog ends.
    bool opensDialog = false;
};

/// Gives items and buttons their texts, icons and shortcuts and connects them to the actions, for
/// as long as `context` lives.
void setUp(const std::vector<Command> &commands, QObject *context);

/// Enables what can be used now and disables the rest; presses the switches that are on.
void refresh(const std::vector<Command> &commands);
