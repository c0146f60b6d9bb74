// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/export_options.h"
#include "export/file_card.h"
#include "shell/command.h"

#include <QObject>

#include <vector>

class AppDelegate;
struct CaptureMode;
namespace Ui {
class MainWindow;
}

/// The table of everything that the user can command: see app/command_table.cpp.
std::vector<Command> commandTable(AppDelegate &controller);

/// The controls of the GIF tab, for what works them.
ExportControls exportControls(const Ui::MainWindow &ui);

/// Likewise those of its card.
FileCardControls fileCardControls(const Ui::MainWindow &ui);

/// Ties the desks to the main window: gives views their desks, shows what the desks report, and
/// enables what can be used. It holds no state of the program.
class Controls : public QObject {
    Q_OBJECT

public:
    /// Gives the views their desks and listens to these. The main window has been loaded;
    /// `controller` is borrowed and outlives it.
    explicit Controls(AppDelegate &controller);

    /// Gives everything its text, icon and shortcut, and the commands their actions. To be called
    /// once, when the texts have been loaded.
    void setUp();

    /// Enables the commands that can be used now.
    void refresh();

private:
    void makeMenus();
    /// Offers single monitors where there is more than one.
    void showMonitors();
    void fillMonitors();
    void offerStillLengths();
    void listenToShell();
    void listenToRecorder();
    void listenToOthers();
    /// Enables what playback allows now; Space goes on playing and pausing on its buttons.
    void showPlayback();
    void listenToCard();
    /// Beside the status line: what leads to the last file, where its card does not show it.
    void showWaysToLastFile();
    void showState();
    void showStatus();
    void showDelay();
    void showSource();
    void showCaptureMode(const CaptureMode &mode);
    void showRecording();

    AppDelegate &controller_;
    Ui::MainWindow &ui_;
    std::vector<Command> commands_;
    QString status_; // as the desks report it
    QString hint_;   // likewise
};
