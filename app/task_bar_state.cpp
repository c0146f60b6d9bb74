// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/task_bar_state.h"

#include "shell/palette_icon.h"
#include "shell/shell_fields.h"
#include "shell/title_text.h"

#include <QApplication>
#include <QMainWindow>

void showStateInTaskBar(const ShellFields &shell, RecordStatus status, int secondsToGo) {
    const struct {
        RecordStatus state;
        QString words;
        QIcon icon;
    } states[] = {
        {RECORD_STATUS_RECORD, qtTrId("IDD_STATE_RECORDING"),
         drawnIcon(QStringLiteral(":/icons/tovarel-recording.svg"))},
        {RECORD_STATUS_PAUSE, qtTrId("IDD_STATE_PAUSED"),
         drawnIcon(QStringLiteral(":/icons/tovarel-paused.svg"))},
    };
    QString title = shell.s_App_Name();
    QIcon icon = QApplication::windowIcon();
    for (const auto &each : states)
        if (each.state == status) {
            // The word first, where a narrow task bar does not cut it off.
            title = QStringLiteral("%1 – %2").arg(each.words, title);
            icon = each.icon;
        }
    if (secondsToGo > 0)
        title = QStringLiteral("%1 – %2").arg(secondsToGo).arg(title);
    title = titleText(title);
    // Also asked for every second; the window manager hears of changes only.
    if (shell.window()->windowTitle() == title)
        return;
    shell.window()->setWindowTitle(title);
    shell.window()->setWindowIcon(icon);
}
