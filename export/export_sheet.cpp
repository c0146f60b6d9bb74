// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/exporter.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

void Exporter::beginExport(const QString &caption) {
    surroundings_.showStatus({});
    working_folders::removeContent(surroundings_.shell.s_Export_Folder());
    surroundings_.progress.show(caption);
    surroundings_.progress.setText(QStringLiteral("%p%"));
    surroundings_.progress.offerCancel();
    // Laying the frames out, which comes next, lets nothing be painted.
    surroundings_.progress.paint();
    // It may have been deleted since the start.
    working_folders::ensureFolder(surroundings_.shell.s_Export_Folder());
}

bool Exporter::endedWithoutResult(const std::optional<QString> &failure) {
    surroundings_.progress.close();
    if (exporting.exportCancelled()) {
        working_folders::removeContent(surroundings_.shell.s_Export_Folder());
        working_folders::removeContent(surroundings_.shell.s_Pallete_Folder());
        surroundings_.showStatus(qtTrId("IDD_EXPORT_CANCELLED"));
        return true;
    }
    if (failure)
        surroundings_.alerts.run(AlertKind::Error, *failure);
    return failure.has_value();
}
