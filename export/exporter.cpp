// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/exporter.h"
#include "export/gif_file.h"
#include "export/size_text.h"
#include "platform/text_number.h"
#include "record/recorder.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"
#include "trim/trim_editor.h"

#include <QImageReader>

namespace {

constexpr std::uint64_t fewestFrames = 3; // fewer are no moving picture

constexpr std::uint64_t partOfMemory = 2; // of what is free: half may be taken

} // namespace

bool Exporter::mayExport() const {
    return !exporting.exportRuns() && !surroundings_.progress.windowProgress();
}

bool Exporter::hasTooFewFrames() const { return editor_.keptFrames().count() < fewestFrames; }

std::optional<QSize> Exporter::originalSize() const {
    // The files are what the encoders read, and all of them have the first one's size. What is
    // recorded now may be another region or screen.
    QImageReader frame(working_folders::frameFile(surroundings_.shell.s_Output_Folder(), 0), "png");
    const QSize size = frame.size();
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

frame_timing::Request Exporter::timingRequest(const ExportChoices &choices) const {
    return {.kept = editor_.keptFrames(),
            .recordedRate = recorder_.recording.exactRate(),
            .chosenRate = choices.rate,
            .speed = choices.speed,
            .hold = choices.hold};
}

std::optional<QString> Exporter::refusal(const ExportChoices &choices) const {
    if (hasTooFewFrames())
        return surroundings_.texts.s_IDD_LOW_FRAME_NUMBER();
    const bool sized = integerValue(choices.width) != 0 && integerValue(choices.height) != 0;
    return sized ? std::nullopt : std::optional(surroundings_.texts.s_IDD_INVALID_DIMENSION());
}

std::optional<QString> Exporter::sizeRefusal(const ExportChoices &choices, int longestSide) const {
    for (const auto &[side, typed] :
         {std::pair(PictureSide::Width, &choices.width), {PictureSide::Height, &choices.height}}) {
        SizeTextProblem problem = sizeTextProblem(*typed);
        if (problem == SizeTextProblem::None && integerValue(*typed) > longestSide)
            problem = SizeTextProblem::TooLarge;
        if (problem != SizeTextProblem::None)
            return sizeProblemText(side, problem, longestSide);
    }
    return std::nullopt;
}

std::optional<QString> Exporter::GIFSizeRefusal(const ExportChoices &choices) const {
    if (const std::optional<QString> reason = sizeRefusal(choices, longestGIFSide))
        return reason;
    const std::optional<MemoryState> memory = recorder_.recording.memory();
    if (!memory)
        return std::nullopt;
    const QSize size(static_cast<int>(integerValue(choices.width)),
                     static_cast<int>(integerValue(choices.height)));
    const bool stored =
        recorder_.recording.array_Images && !recorder_.recording.array_Images->empty();
    const QSize recorded = stored ? recorder_.recording.array_Images->front().size()
                                  : originalSize().value_or(QSize(0, 0));
    const std::uint64_t needed = gifWorkingMemory(recorded, size);
    const std::uint64_t limit = memory->available / partOfMemory;
    if (needed <= limit)
        return std::nullopt;
    return qtTrId("IDD_GIF_TOO_LARGE")
        .arg(QString::number(size.width()), QString::number(size.height()),
             number_text::bytes(needed), number_text::bytes(limit));
}
