// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/alerts.h"
#include "shell/interface_strings.h"
#include "shell/progress_sheet.h"
#include "shell/shell_fields.h"

#include <QObject>
#include <QString>

/// What every concern shows itself with and works in: the main window's frame, the working folders,
/// the texts; alerts, the progress sheet and the status line. One for the program, owned by the
/// controller; each desk is made with a reference to it. It knows no concern.
class Surroundings : public QObject {
    Q_OBJECT

public:
    Surroundings() : alerts(shell) {}

    ShellFields shell;
    InterfaceStrings texts;
    Alerts alerts;
    ProgressSheet progress;

    /// Shows `text` in the status line until the next one; an empty text clears it.
    void showStatus(const QString &text) { Q_EMIT statusChanged(text); }

    /// Shows `text` while there is nothing to say and nothing to be done on the Record tab.
    void showHint(const QString &text) { Q_EMIT hintChanged(text); }

    /// Takes the frame of the main window's screen into `frame_Screen` and `size_Screen`; the zero
    /// rectangle without a screen. Points, lower left origin.
    void updateScreen();

    /// Whether a recording exists: whether anything is at the first frame's path.
    bool firstFrameFileExists() const;

Q_SIGNALS:
    void statusChanged(const QString &text);
    void hintChanged(const QString &text);
};
