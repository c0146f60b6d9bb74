// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

void AppDelegate::showExportSheet(const QString &caption, const QString &step) {
    surroundings.progress.show(caption);
    surroundings.progress.setText(step);
    surroundings.progress.offerCancel();
    // Laying the frames out, which comes next, lets nothing be painted.
    surroundings.progress.paint();
}

bool AppDelegate::endedWithoutResult(const std::optional<QString> &failure) {
    surroundings.progress.close();
    if (exporting.exportCancelled()) {
        RemoveAllContentInFolder(shell.s_Export_Folder());
        RemoveAllContentInFolder(shell.s_Pallete_Folder());
        surroundings.showStatus(qtTrId("IDD_EXPORT_CANCELLED"));
        return true;
    }
    if (failure)
        surroundings.alerts.run(AlertKind::Error, *failure);
    return failure.has_value();
}
