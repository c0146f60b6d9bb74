// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/working_folders.h"
#include "export/duration.h"
#include "export/encoder_arguments.h"
#include "export/export_checks.h"
#include "export/save_request.h"
#include "export/staging.h"
#include "export/tool_failure.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QImageReader>
#include <QLocale>

namespace {

const QString encoder = QStringLiteral("ffmpeg");
const QString errorTitle = QStringLiteral("Error");

} // namespace

void AppDelegate::OnGIFExport(QObject *) {
    if (!mayExport(*this))
        return;
    const ExportMark mark(exporting);
    finishEditingGIFSize();
    if (const std::optional<QString> reason = refusal(*this)) {
        RunAlert(errorTitle, *reason);
        return;
    }
    const range_rules::Kept kept = *keptRange();
    exporting.setI_Orig_Duration_in_Seconds(
        expectedDuration(kept.first, kept.last, recording.u_Record_Current_FPS()));
    ShowStatus({});
    RemoveAllContentInFolder(shell.s_Export_Folder());
    showProgressSheet(qtTrId("IDD_PROGRESS_GIF"));
    // The two runs for the palette tell nothing and let nothing be painted.
    setProgressText(qtTrId("IDD_PROGRESS_PALETTE"));
    paintProgressSheet();
    RemoveAllContentInFolder(shell.s_Pallete_Folder());
    // Somebody may have taken them away since the start.
    working_folders::ensureFolder(shell.s_Export_Folder());
    working_folders::ensureFolder(shell.s_Pallete_Folder());
    const std::uint64_t staged = stageFrames(shell.s_Output_Folder(), kept.first, kept.last,
                                             shell.s_Export_Folder(), shell.s_Pallete_Folder());
    const std::optional<QString> failure = encodeGIF();
    if (failure) {
        closeProgressSheet();
        RunAlert(errorTitle, *failure);
        return;
    }
    const QString gif = encoder_arguments::gifFile(shell.s_Export_Folder());
    QString note;
    const std::uint64_t wanted = kept.count();
    if (staged < wanted) {
        // The input ends at the gap, or begins after it: only the file knows what it holds.
        const QLocale locale;
        note = qtTrId("IDD_STATUS_GAP")
                   .arg(locale.toString(QImageReader(gif).imageCount()),
                        locale.toString(qulonglong{wanted}));
        ShowStatus(note);
    }
    saveResult({.file = gif,
                .panelTitle = QStringLiteral("Select a folder to save the GIF image"),
                .successText = texts.s_IDD_GIF_SAVED_OK(),
                .note = note});
}

std::optional<QString> AppDelegate::encodeGIF() {
    using namespace encoder_arguments;
    const QString &tool = shell.sffmpegPath();
    const QString &palette = shell.s_Pallete_Folder();
    for (const QStringList &arguments :
         {paletteVideoArguments(palette), paletteArguments(palette)}) {
        const ToolRun run = RunToolReadAllOutput(tool, arguments);
        if (!run.exit.succeeded())
            return toolFailureText(encoder, run.exit);
    }
    const QString width = ui->textGIFWidth->text();
    const QString height = ui->textGIFHeigth->text();
    const auto rate = static_cast<std::uint64_t>(ui->comboGIFFPS->currentIndex() + 1);
    setProgressText(qtTrId("IDD_PROGRESS_PICTURES"));
    const ToolExit exit = RunToolWithProgress(
        tool, gifArguments(shell.s_Export_Folder(), palette, rate, width, height));
    if (exit.kind == ToolExit::Kind::Ended && exit.code != 0)
        return toolFailureText(encoder, exit) + QStringLiteral("\n\n") +
               qtTrId("IDD_REFUSED_SIZE").arg(width, height);
    if (!exit.succeeded())
        return toolFailureText(encoder, exit);
    const QString gif = gifFile(shell.s_Export_Folder());
    if (QFileInfo(gif).size() == 0)
        return noResultText(encoder, gif, exit);
    return std::nullopt;
}
