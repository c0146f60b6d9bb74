// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/exporter.h"
#include "export/preset_name.h"
#include "export/safe_move.h"
#include "export/save_request.h"
#include "shell/number_text.h"
#include "shell/settings.h"
#include "shell/surroundings.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace {

/// The folder that the save panel shows first: the last one used, else the one for pictures.
QString startFolder() {
    const QString lastUsed = settings::readLastSaveFolder();
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    for (const QString &folder : {lastUsed, pictures})
        if (QDir::isAbsolutePath(folder) && QFileInfo(folder).isDir())
            return folder;
    return QDir::homePath();
}

/// Whether a file of that path would be in a folder that the program empties.
bool liesInWorkingFolder(const QString &path, const ShellFields &shell) {
    const QString folder = QFileInfo(path).dir().canonicalPath() + QLatin1Char('/');
    const std::array working{shell.s_Output_Folder(), shell.s_Export_Folder(),
                             shell.s_Pallete_Folder()};
    return std::any_of(working.begin(), working.end(), [&folder](const QString &own) {
        const QString canonical = QDir(own).canonicalPath();
        return !canonical.isEmpty() && folder.startsWith(canonical + QLatin1Char('/'));
    });
}

/// Asks for the place; an empty text when the user cancels.
QString runSavePanel(QWidget *parent, const SaveRequest &request, const QString &folder) {
    QFileDialog panel(parent, request.panelTitle, folder);
    panel.setObjectName(QStringLiteral("savePanel"));
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setFileMode(QFileDialog::AnyFile);
    const QString suffix = QFileInfo(request.file).suffix();
    panel.selectFile(presetName(request.made, suffix, [&folder](const QString &name) {
        const QFileInfo found(QDir(folder).filePath(name));
        return found.exists() || found.isSymLink();
    }));
    // A name typed without an ending gets the one that other programs know the file by.
    panel.setDefaultSuffix(suffix);
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty())
        return {};
    return panel.selectedFiles().first();
}

} // namespace

void Exporter::saveResult(const SaveRequest &request) {
    if (takeResult_) {
        takeResult_(request);
        return;
    }
    exporting.unsaved = request;
    chooseResultsPlace();
}

void Exporter::chooseResultsPlace() {
    const SaveRequest request = *exporting.unsaved;
    const QString path = runSavePanel(surroundings_.shell.window(), request, startFolder());
    if (path.isEmpty()) {
        showUnsavedResult();
        return;
    }
    const std::optional<QString> failure = liesInWorkingFolder(path, surroundings_.shell)
                                               ? qtTrId("IDD_MOVE_WORKING_FOLDER")
                                               : safeMove(request.file, path);
    if (failure) {
        surroundings_.alerts.run(AlertKind::Error,
                                 qtTrId("IDD_MOVE_FAILED").arg(path, *failure, request.file));
        showUnsavedResult();
        return;
    }
    forgetResult();
    const QFileInfo saved(path);
    settings::writeLastSaveFolder(saved.absolutePath());
    const QString size = number_text::bytes(static_cast<std::uint64_t>(saved.size()));
    const QString status = request.note.isEmpty()
                               ? qtTrId("IDD_STATUS_SAVED").arg(path, size)
                               : qtTrId("IDD_STATUS_SAVED_NOTE").arg(path, size, request.note);
    surroundings_.showStatus(status);
    surroundings_.alerts.run(AlertKind::Success, request.successText, status);
}
