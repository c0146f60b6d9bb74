// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "export/export_checks.h"
#include "shell/question.h"
#include "ui_MainWindow.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// What users call the file.
QString kindOf(const SaveRequest &request) {
    return QFileInfo(request.file).suffix() == QLatin1String("webp") ? QStringLiteral("WebP")
                                                                     : QStringLiteral("GIF");
}

} // namespace

bool AppDelegate::hasUnsavedResult() const {
    return exporting.unsaved && QFileInfo::exists(exporting.unsaved->file);
}

void AppDelegate::showUnsavedResult() {
    ui->btnSaveResult->setVisible(hasUnsavedResult());
    if (!hasUnsavedResult())
        return;
    QString status = qtTrId("IDD_STATUS_UNSAVED").arg(kindOf(*exporting.unsaved));
    if (!exporting.unsaved->note.isEmpty())
        status += QLatin1Char(' ') + exporting.unsaved->note;
    surroundings.showStatus(status);
}

void AppDelegate::saveUnsavedResult() {
    if (surroundings.alerts.isAsking() || !mayExport(*this))
        return;
    // Neither a second panel nor an export beneath the first one.
    const ExportMark mark(exporting);
    if (hasUnsavedResult())
        chooseResultsPlace();
    else
        forgetResult();
}

void AppDelegate::forgetResult() {
    exporting.unsaved.reset();
    ui->btnSaveResult->hide();
}

bool AppDelegate::mustAskFirst(std::function<void()> goOn) {
    // Assistive technology reaches what a dialog blocks.
    if (surroundings.alerts.isAsking() || isOpeningRecording())
        return true;
    if (!hasUnsavedResult()) {
        // Somebody may have taken it away: what is made next under its name is another one.
        forgetResult();
        return false;
    }
    const QString kind = kindOf(*exporting.unsaved);
    surroundings.alerts.ask({.message = qtTrId("IDD_UNSAVED_QUESTION").arg(kind),
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
                                    forgetResult();
                                    surroundings.showStatus({});
                                }
                                if (!hasUnsavedResult())
                                    goOn();
                            });
    return true;
}
