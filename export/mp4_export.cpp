// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/exporter.h"
#include "export/made_file.h"
#include "export/staging.h"
#include "export/tool_failure.h"
#include "export/tool_run.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QFileInfo>

namespace {

constexpr int longestSide = 16384; // pixels: the encoder takes no more

const QString encoder = QStringLiteral("ffmpeg");

/// What the encoder says of a name that it does not know.
bool lacksEncoder(const ToolExit &exit) {
    return exit.lastLines.contains(QStringLiteral("Unknown encoder"));
}

} // namespace

void Exporter::Generate_MP4() {
    makeFile({.longestSide = longestSide,
              .ticks = frame_timing::videoTicks,
              .caption = "IDD_PROGRESS_MP4",
              .gap = "IDD_STATUS_MP4_GAP",
              .file = encoder_arguments::mp4File(surroundings_.shell.s_Export_Folder()),
              .encode = [this](Frames frames, const ExportChoices &choices) {
                  return MadeFile{.failure = encodeMP4(frames, choices)};
              }});
}

std::optional<QString> Exporter::encodeMP4(Frames frames, const ExportChoices &choices) {
    const QString &folder = surroundings_.shell.s_Export_Folder();
    stageFrames(surroundings_.shell.s_Output_Folder(), frames, folder);
    exporting.setI_Orig_Duration_in_Seconds(
        frame_timing::beginOfLast(frames, frame_timing::videoTicks));
    const ToolExit exit =
        RunToolWithProgress(surroundings_.shell.sffmpegPath(),
                            encoder_arguments::mp4Arguments(folder, frames, choices.width,
                                                            choices.height, choices.preset));
    if (lacksEncoder(exit))
        return qtTrId("IDD_MP4_NO_ENCODER");
    if (!exit.succeeded())
        return refusedSizeText(encoder, exit, choices.width, choices.height);
    const QString output = encoder_arguments::mp4File(folder);
    if (QFileInfo(output).size() == 0)
        return noResultText(encoder, output, exit);
    return std::nullopt;
}
