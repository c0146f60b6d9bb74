// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class AppDelegate;
class Controls;

/// The start of the program, step by step.
namespace start_up {

/// Loads the main window from its description and makes its tab view.
void makeMainWindow(AppDelegate &controller);

/// The start-up sequence; the window is shown when it returns. False when a working folder in
/// `documentsFolder` could not be made (the user has been notified).
bool run(AppDelegate &controller, Controls &controls, const QString &documentsFolder);

} // namespace start_up
