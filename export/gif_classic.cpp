// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/exporter.h"
#include "export/loops_text.h"
#include "export/made_file.h"
#include "export/staging.h"
#include "export/tool_failure.h"
#include "export/tool_run.h"
#include "shell/surroundings.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {

const QString encoder = QStringLiteral("ffmpeg");

} // namespace

MadeFile Exporter::makeClassicGIF(Frames frames, const ExportChoices &choices) {
    surroundings_.progress.setText(qtTrId("IDD_PROGRESS_PALETTE"));
    const std::uint64_t staged = stageFrames(surroundings_.shell.s_Output_Folder(), frames,
                                             surroundings_.shell.s_Export_Folder());
    stageFrames(
        surroundings_.shell.s_Output_Folder(),
        frames.first(std::min<std::size_t>(frames.size(), encoder_arguments::paletteFrames)),
        surroundings_.shell.s_Pallete_Folder());
    MadeFile made{.failure = runClassicEncoder(frames, choices), .frames = frames.size()};
    // The input ends at a gap, or begins after it: only the file knows what it holds.
    if (!made.failure && staged < frames.size()) {
        const QImageReader gif(encoder_arguments::gifFile(surroundings_.shell.s_Export_Folder()));
        made.frames = static_cast<std::uint64_t>(std::max(gif.imageCount(), 0));
    }
    return made;
}

std::optional<QString> Exporter::runClassicEncoder(Frames frames, const ExportChoices &choices) {
    using namespace encoder_arguments;
    const QString &tool = surroundings_.shell.sffmpegPath();
    const QString &palette = surroundings_.shell.s_Pallete_Folder();
    for (const QStringList &arguments :
         {paletteVideoArguments(palette), paletteArguments(palette)}) {
        const ToolRun run = RunToolReadAllOutput(tool, arguments);
        if (!run.exit.succeeded())
            return toolFailureText(encoder, run.exit);
    }
    surroundings_.progress.setText(qtTrId("IDD_PROGRESS_PICTURES"));
    exporting.setI_Orig_Duration_in_Seconds(
        frame_timing::beginOfLast(frames, frame_timing::gifTicks));
    const ToolExit exit = RunToolWithProgress(
        tool,
        gifArguments(surroundings_.shell.s_Export_Folder(), palette, frames, choices.width,
                     choices.height,
                     {.repeats = repeatsOf(choices.loops),
                      .held = frame_timing::heldTicks(choices.hold, frame_timing::gifTicks)}));
    if (!exit.succeeded())
        return refusedSizeText(encoder, exit, choices.width, choices.height);
    const QString gif = gifFile(surroundings_.shell.s_Export_Folder());
    if (QFileInfo(gif).size() == 0)
        return noResultText(encoder, gif, exit);
    return std::nullopt;
}
