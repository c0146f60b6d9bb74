// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_mark.h"
#include "export/exporter.h"
#include "export/left_file.h"
#include "record/recorder.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QFile>
#include <QFileInfo>

QString kindOf(const SaveRequest &request) {
    const QString suffix = QFileInfo(request.file).suffix();
    return suffix == QLatin1String("webp") ? QStringLiteral("WebP") : suffix.toUpper();
}

bool Exporter::hasUnsavedResult() const {
    return exporting.unsaved && QFileInfo::exists(exporting.unsaved->file);
}

void Exporter::showUnsavedResult() {
    Q_EMIT unsavedResultChanged();
    if (hasUnsavedResult())
        sayWhatIsUnsaved();
}

void Exporter::sayWhatIsUnsaved() {
    QString status = qtTrId("IDD_STATUS_UNSAVED").arg(kindOf(*exporting.unsaved));
    if (!exporting.unsaved->note.isEmpty())
        status += QLatin1Char(' ') + exporting.unsaved->note;
    surroundings_.showStatus(status);
}

void Exporter::saveUnsavedResult() {
    if (surroundings_.alerts.isAsking() || !mayExport())
        return;
    // Neither a second panel nor an export beneath the first one.
    {
        const ExportMark mark(exporting);
        if (hasUnsavedResult())
            chooseResultsPlace();
        else
            forgetResult();
    }
    Q_EMIT fileMoved();
}

void Exporter::takeLeftFile() {
    const QString &folder = surroundings_.shell.s_Export_Folder();
    exporting.finished = left_file::find(folder);
    if (!exporting.finished) {
        working_folders::removeContent(folder);
        return;
    }
    const QFileInfo file(exporting.finished->path);
    const QFileInfo note(left_file::noteFile(file.filePath()));
    working_folders::removeContent(folder, {file.fileName(), note.fileName()});
    exporting.unsaved =
        SaveRequest{.file = file.filePath(), .note = {}, .made = file.lastModified()};
    Q_EMIT unsavedResultChanged();
    Q_EMIT fileLeft();
}

void Exporter::forgetResult() {
    if (exporting.unsaved)
        left_file::removeNote(exporting.unsaved->file);
    exporting.unsaved.reset();
    Q_EMIT unsavedResultChanged();
    Q_EMIT fileMoved();
}

bool Exporter::mustAskFirst(std::function<void()> goOn) {
    // Assistive technology reaches what a dialog blocks.
    if (surroundings_.alerts.isAsking() || recorder_.isOpeningRecording())
        return true;
    if (!hasUnsavedResult()) {
        // It may have been deleted: what is made next under its name is another one.
        forgetResult();
        return false;
    }
    const QString kind = kindOf(*exporting.unsaved);
    surroundings_.alerts.ask({.message = qtTrId("IDD_UNSAVED_QUESTION").arg(kind),
                              .detail = qtTrId("IDD_UNSAVED_DETAIL"),
                              .accept = qtTrId("IDD_SAVE_RESULT"),
                              .destroy = qtTrId("IDD_DISCARD"),
                              .cancel = qtTrId("IDD_CANCEL")},
                             [this, goOn = std::move(goOn)](Answer answer) {
                                 if (answer == Answer::Cancel)
                                     return;
                                 if (answer == Answer::Accept) {
                                     saveUnsavedResult();
                                 } else if (exporting.unsaved) {
                                     QFile::remove(exporting.unsaved->file);
                                     exporting.finished.reset();
                                     forgetResult();
                                     surroundings_.showStatus({});
                                 }
                                 if (!hasUnsavedResult())
                                     goOn();
                             });
    return true;
}
