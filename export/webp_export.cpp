// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/working_folders.h"
#include "export/encoder_arguments.h"
#include "export/export_checks.h"
#include "export/save_request.h"
#include "export/tool_failure.h"
#include "ui_MainWindow.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>

namespace {

const QString encoder = QStringLiteral("img2webp");
const QString errorTitle = QStringLiteral("Error");

/// The frame files of the range up to the first one that is missing.
QStringList framesUpToGap(const QString &folder, std::uint64_t first, std::uint64_t last) {
    QStringList files;
    for (std::uint64_t frame = first; frame <= last; ++frame) {
        const QString file = working_folders::frameFile(folder, frame);
        if (!QFileInfo::exists(file))
            break;
        files += file;
    }
    return files;
}

} // namespace

void AppDelegate::Generate_WebP(QObject *) {
    if (!mayExport(*this))
        return;
    const ExportMark mark(exporting);
    finishEditingGIFSize();
    if (const std::optional<QString> reason = refusal(*this)) {
        RunAlert(errorTitle, *reason);
        return;
    }
    const range_rules::Kept kept = *keptRange();
    RemoveAllContentInFolder(shell.s_Export_Folder());
    const QStringList frames = framesUpToGap(shell.s_Output_Folder(), kept.first, kept.last);
    const std::optional<QString> failure = encodeWebP(frames);
    ShowStatus({});
    if (failure) {
        RunAlert(errorTitle, *failure);
        return;
    }
    QString note;
    const std::uint64_t wanted = kept.count();
    if (static_cast<std::uint64_t>(frames.size()) < wanted) {
        const QLocale locale;
        note = qtTrId("IDD_STATUS_WEBP_GAP")
                   .arg(locale.toString(frames.size()), locale.toString(qulonglong{wanted}));
        ShowStatus(note);
    }
    saveResult({.file = encoder_arguments::webpFile(shell.s_Output_Folder()),
                .panelTitle = QStringLiteral("Select a folder to save the WebP image"),
                .successText = QStringLiteral("Success"),
                .note = note});
}

std::optional<QString> AppDelegate::encodeWebP(const QStringList &frames) {
    const QString output = encoder_arguments::webpFile(shell.s_Output_Folder());
    // One that was not saved earlier must not pass for the result of this run.
    QFile::remove(output);
    ShowStatus(qtTrId("IDD_STATUS_WEBP_RUNS"));
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    ui->labelStatus->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    const ToolRun run = RunToolReadAllOutput(
        shell.simg2webpPath(),
        encoder_arguments::webpArguments(ui->txtWebPLoops->text(), frames, output));
    QGuiApplication::restoreOverrideCursor();
    qInfo("%s", qPrintable(run.text));
    if (!run.exit.succeeded())
        return toolFailureText(encoder, run.exit);
    if (QFileInfo(output).size() == 0)
        return noResultText(encoder, output, run.exit);
    return std::nullopt;
}
