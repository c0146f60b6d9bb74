// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/export_mark.h"
#include "export/exporter.h"
#include "export/save_request.h"
#include "export/staging.h"
#include "export/tool_failure.h"
#include "export/tool_run.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QFileInfo>
#include <QLocale>

using frame_timing::TimedFrame;

namespace {

constexpr int longestSide = 16384; // pixels: the encoder takes no more

const QString encoder = QStringLiteral("ffmpeg");

/// What the encoder says of a name that it does not know.
bool lacksEncoder(const ToolExit &exit) {
    return exit.lastLines.contains(QStringLiteral("Unknown encoder"));
}

} // namespace

void Exporter::Generate_MP4() {
    if (!mayExport())
        return;
    const ExportMark mark(exporting);
    const ExportChoices asked = choices();
    std::optional<QString> reason = refusal(asked);
    if (!reason)
        reason = sizeRefusal(asked, longestSide);
    if (reason) {
        surroundings_.alerts.run(AlertKind::Error, *reason);
        return;
    }
    if (mustAskFirst([this] { Generate_MP4(); }))
        return;
    beginExport(qtTrId("IDD_PROGRESS_MP4"));
    const std::vector<TimedFrame> wanted =
        frame_timing::timedFrames(timingRequest(asked), frame_timing::videoTicks);
    const Frames frames = framesUpToGap(surroundings_.shell.s_Output_Folder(), wanted);
    if (endedWithoutResult(encodeMP4(frames, asked)))
        return;
    QString note;
    if (frames.size() < wanted.size()) {
        const QLocale locale;
        note = qtTrId("IDD_STATUS_MP4_GAP")
                   .arg(locale.toString(qulonglong{frames.size()}),
                        locale.toString(qulonglong{wanted.size()}));
        surroundings_.showStatus(note);
    }
    saveResult({.file = encoder_arguments::mp4File(surroundings_.shell.s_Export_Folder()),
                .panelTitle = QStringLiteral("Select a folder to save the MP4 video"),
                .successText = QStringLiteral("Success"),
                .note = note});
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
