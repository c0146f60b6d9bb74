// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class InterfaceStrings;
namespace Ui {
class MainWindow;
}

/// Gives menus and fields of the main window their texts: everything that is no command. `name` is
/// the program's.
void nameControls(const Ui::MainWindow &ui, const InterfaceStrings &texts, const QString &name);
