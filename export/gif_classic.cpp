// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "export/encoder_arguments.h"
#include "export/made_gif.h"
#include "export/staging.h"
#include "export/tool_failure.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {

const QString encoder = QStringLiteral("ffmpeg");

} // namespace

MadeGif AppDelegate::makeClassicGIF(std::span<const frame_timing::TimedFrame> frames) {
    surroundings.progress.setText(qtTrId("IDD_PROGRESS_PALETTE"));
    const std::uint64_t staged =
        stageFrames(shell.s_Output_Folder(), frames, shell.s_Export_Folder());
    stageFrames(
        shell.s_Output_Folder(),
        frames.first(std::min<std::size_t>(frames.size(), encoder_arguments::paletteFrames)),
        shell.s_Pallete_Folder());
    MadeGif made{.failure = runClassicEncoder(frames), .frames = frames.size()};
    // The input ends at a gap, or begins after it: only the file knows what it holds.
    if (!made.failure && staged < frames.size()) {
        const QImageReader gif(encoder_arguments::gifFile(shell.s_Export_Folder()));
        made.frames = static_cast<std::uint64_t>(std::max(gif.imageCount(), 0));
    }
    return made;
}

std::optional<QString>
AppDelegate::runClassicEncoder(std::span<const frame_timing::TimedFrame> frames) {
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
    surroundings.progress.setText(qtTrId("IDD_PROGRESS_PICTURES"));
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
