// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "shell/window_progress.h"

void AppDelegate::showExportSheet(const QString &caption, const QString &step) {
    showProgressSheet(caption);
    setProgressText(step);
    Window_Progress *sheet = exporting.windowProgress();
    connect(sheet, &Window_Progress::cancelled, this, &AppDelegate::cancelExport);
    sheet->offerCancel();
    // Laying the frames out, which comes next, lets nothing be painted.
    paintProgressSheet();
}

bool AppDelegate::endedWithoutResult(const std::optional<QString> &failure) {
    closeProgressSheet();
    if (exporting.exportCancelled()) {
        RemoveAllContentInFolder(shell.s_Export_Folder());
        RemoveAllContentInFolder(shell.s_Pallete_Folder());
        ShowStatus(qtTrId("IDD_EXPORT_CANCELLED"));
        return true;
    }
    if (failure)
        RunAlert(QStringLiteral("Error"), *failure);
    return failure.has_value();
}
