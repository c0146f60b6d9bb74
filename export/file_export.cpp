// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/export_mark.h"
#include "export/exporter.h"
#include "export/made_file.h"
#include "export/save_request.h"
#include "export/staging.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"

void Exporter::makeFile(const FileFormat &format) {
    if (!mayExport())
        return;
    const ExportMark mark(exporting);
    const ExportChoices asked = choices();
    const bool withoutAsking = mustNotAsk();
    std::optional<QString> reason = refusal(asked);
    if (!reason)
        reason = sizeRefusal(asked, format.longestSide);
    if (!reason && format.makeLowered && asked.preset != GifPreset::Classic && asked.limit.isWrong)
        reason = qtTrId("IDD_LIMIT_NOT_NUMBER");
    if (reason) {
        surroundings_.alerts.run(AlertKind::Error, *reason);
        return;
    }
    if (mustAskFirst([this, format] { makeFile(format); }))
        return;
    beginExport(qtTrId(format.caption));
    const std::vector<frame_timing::TimedFrame> wanted =
        frame_timing::timedFrames(timingRequest(asked), format.ticks);
    const Frames frames = framesUpToGap(surroundings_.shell.s_Output_Folder(), wanted);
    const MadeFile made = format.encode(frames, asked);
    if (endedWithoutResult(made.failure))
        return;
    if (made.needsLowering) {
        askToLower(asked, format.makeLowered);
        return;
    }
    QString note = made.fitNote;
    if (frames.size() < wanted.size()) {
        note = qtTrId(format.gap, static_cast<int>(wanted.size()))
                   .arg(number_text::count(frames.size()));
    }
    surroundings_.showStatus(note);
    saveResult({.file = format.file, .note = note, .withoutAsking = withoutAsking}, frames,
               format.ticks, asked);
}
