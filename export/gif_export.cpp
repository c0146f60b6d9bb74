// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/working_folders.h"
#include "export/encoder_arguments.h"
#include "export/export_checks.h"
#include "export/save_request.h"
#include "export/staging.h"
#include "export/tool_failure.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QImageReader>
#include <QLocale>

#include <algorithm>

namespace {

const QString encoder = QStringLiteral("ffmpeg");

} // namespace

void AppDelegate::OnGIFExport(QObject *) {
    if (!mayExport(*this))
        return;
    const ExportMark mark(exporting);
    finishEditingGIFSize();
    if (const std::optional<QString> reason = refusal(*this)) {
        RunAlert(QStringLiteral("Error"), *reason);
        return;
    }
    if (mustAskFirst([this] { OnGIFExport(nullptr); }))
        return;
    ShowStatus({});
    RemoveAllContentInFolder(shell.s_Export_Folder());
    showExportSheet(qtTrId("IDD_PROGRESS_GIF"), qtTrId("IDD_PROGRESS_PALETTE"));
    RemoveAllContentInFolder(shell.s_Pallete_Folder());
    // Somebody may have taken them away since the start.
    working_folders::ensureFolder(shell.s_Export_Folder());
    working_folders::ensureFolder(shell.s_Pallete_Folder());
    using namespace frame_timing;
    const std::vector<TimedFrame> frames = timedFrames(timingRequest(), gifTicks);
    const std::span<const TimedFrame> all(frames);
    const std::uint64_t staged = stageFrames(shell.s_Output_Folder(), all, shell.s_Export_Folder());
    stageFrames(shell.s_Output_Folder(),
                all.first(std::min<std::size_t>(all.size(), encoder_arguments::paletteFrames)),
                shell.s_Pallete_Folder());
    if (endedWithoutResult(encodeGIF(all)))
        return;
    const QString gif = encoder_arguments::gifFile(shell.s_Export_Folder());
    QString note;
    if (staged < frames.size()) {
        // The input ends at the gap, or begins after it: only the file knows what it holds.
        const QLocale locale;
        note = qtTrId("IDD_STATUS_GAP")
                   .arg(locale.toString(QImageReader(gif).imageCount()),
                        locale.toString(qulonglong{frames.size()}));
        ShowStatus(note);
    }
    saveResult({.file = gif,
                .panelTitle = QStringLiteral("Select a folder to save the GIF image"),
                .successText = texts.s_IDD_GIF_SAVED_OK(),
                .note = note});
}

std::optional<QString> AppDelegate::encodeGIF(std::span<const frame_timing::TimedFrame> frames) {
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
    setProgressText(qtTrId("IDD_PROGRESS_PICTURES"));
    exporting.setI_Orig_Duration_in_Seconds(
        frame_timing::beginOfLast(frames, frame_timing::gifTicks));
    const ToolExit exit = RunToolWithProgress(
        tool, gifArguments(shell.s_Export_Folder(), palette, frames, width, height));
    if (!exit.succeeded())
        return refusedSizeText(encoder, exit, width, height);
    const QString gif = gifFile(shell.s_Export_Folder());
    if (QFileInfo(gif).size() == 0)
        return noResultText(encoder, gif, exit);
    return std::nullopt;
}
