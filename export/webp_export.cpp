// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/exporter.h"
#include "export/made_file.h"
#include "export/size_text.h"
#include "export/staging.h"
#include "export/tool_failure.h"
#include "export/tool_run.h"
#include "export/webp_estimate.h"
#include "export/webp_sample.h"
#include "platform/text_number.h"
#include "record/recorder.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

using encoder_arguments::WebPCoding;
using encoder_arguments::WebPFrame;
using frame_timing::TimedFrame;

namespace {

// WebP container, VP8X: 24 bits each, but the picture itself has 14.
constexpr int longestSide = 16383; // pixels

const QString encoder = QStringLiteral("img2webp");
const QString scaler = QStringLiteral("ffmpeg");

/// The frames without those that repeat the one before.
std::vector<TimedFrame> withoutRepeats(std::span<const TimedFrame> frames) {
    std::vector<TimedFrame> each;
    for (const TimedFrame &frame : frames)
        if (each.empty() || each.back().source != frame.source)
            each.push_back(frame);
    return each;
}

/// Whether the texts say anything but the size that this picture has.
bool asksForAnotherSize(const QString &picture, const QString &width, const QString &height) {
    const QSize size = QImageReader(picture).size();
    const auto says = [](const QString &text, int pixels) {
        return sizeTextProblem(text) == SizeTextProblem::None && integerValue(text) == pixels;
    };
    return !says(width, size.width()) || !says(height, size.height());
}

} // namespace

void Exporter::Generate_WebP() { generateWebP(false); }

void Exporter::generateWebP(bool mayLowerChosen) {
    const QString file = encoder_arguments::webpFile(surroundings_.shell.s_Export_Folder());
    makeFile({.longestSide = longestSide,
              .ticks = frame_timing::webpTicks,
              .caption = "IDD_PROGRESS_WEBP",
              .gap = "IDD_STATUS_WEBP_GAP",
              .file = file,
              .encode =
                  [this, file, mayLowerChosen](Frames frames, const ExportChoices &choices) {
                      if (choices.limit.bytes && choices.preset != GifPreset::Classic)
                          return makeFittingWebP(frames, choices, mayLowerChosen);
                      const auto quality = encoder_arguments::lossyQuality(choices.preset);
                      return MadeFile{.failure = encodeWebP({frames, choices, quality, file})};
                  },
              .makeLowered = [this] { generateWebP(true); }});
}

WebPPlan Exporter::planWebP(const ExportChoices &choices) const {
    WebPPlan plan{.encoder = surroundings_.shell.simg2webpPath(),
                  .frames = {},
                  .images = {},
                  .lossyQuality = encoder_arguments::lossyQuality(choices.preset)};
    const auto &store = recorder_.recording.array_Images;
    for (const TimedFrame &frame : timedFrames(timingRequest(choices), frame_timing::webpTicks)) {
        plan.frames.push_back(
            {working_folders::frameFile(surroundings_.shell.s_Output_Folder(), frame.source),
             frame.delay});
        if (store && frame.source < store->size())
            plan.images.push_back((*store)[frame.source]);
    }
    if (plan.images.size() < plan.frames.size())
        plan.images.clear();
    if (const std::optional<QSize> size = originalSize())
        plan.pixels =
            static_cast<double>(integerValue(choices.width) * integerValue(choices.height)) /
            (static_cast<double>(size->width()) * size->height());
    return plan;
}

std::optional<QString> Exporter::encodeWebP(const WebPJob &job) {
    const auto &[frames, choices, lossyQuality, output, type] = job;
    const bool scaled =
        !frames.empty() &&
        asksForAnotherSize(working_folders::frameFile(surroundings_.shell.s_Output_Folder(),
                                                      frames.front().source),
                           choices.width, choices.height);
    if (scaled) {
        if (const std::optional<QString> failure = scaleForWebP(frames, choices))
            return failure;
    }
    std::vector<WebPFrame> pictures;
    pictures.reserve(frames.size());
    std::uint64_t number = 0;
    for (std::size_t at = 0; at < frames.size(); ++at) {
        if (at > 0 && frames[at].source != frames[at - 1].source)
            ++number;
        pictures.push_back(
            {.file = scaled ? encoder_arguments::scaledFile(surroundings_.shell.s_Export_Folder(),
                                                            number)
                            : working_folders::frameFile(surroundings_.shell.s_Output_Folder(),
                                                         frames[at].source),
             .milliseconds = frames[at].delay});
    }
    WebPCoding coding;
    if (lossyQuality) {
        const WebPCoding lossy{.lossy = true, .quality = *lossyQuality};
        const auto sample = webpSample(std::span<const WebPFrame>(pictures));
        const qint64 exact = sizeOfWebP(choices, sample, {});
        // Where even that fails, the run that counts says why.
        if (exact > 0 && sizeOfWebP(choices, sample, lossy) < exact)
            coding = lossy;
    }
    exporting.setI_Orig_Duration_in_Seconds(
        frame_timing::beginOfLast(frames, frame_timing::webpTicks));
    const ToolExit exit = runWebPEncoder(choices, pictures, coding, output, type);
    if (!exit.succeeded())
        return toolFailureText(encoder, exit);
    if (QFileInfo(output).size() == 0)
        return noResultText(encoder, output, exit);
    return std::nullopt;
}

qint64 Exporter::sizeOfWebP(const ExportChoices &choices, std::span<const WebPFrame> pictures,
                            const WebPCoding &coding) {
    const QString file = surroundings_.shell.s_Export_Folder() + QStringLiteral("/sample.webp");
    const ToolExit exit =
        runWebPEncoder(choices, pictures, coding, file, PROGRESS_TYPE_PREPARATION);
    const qint64 bytes = exit.succeeded() ? QFileInfo(file).size() : 0;
    QFile::remove(file);
    return bytes;
}

ToolExit Exporter::runWebPEncoder(const ExportChoices &choices, std::span<const WebPFrame> pictures,
                                  const WebPCoding &coding, const QString &output,
                                  ProgressType type) {
    // The arguments go into a file, since a command line has an end. The encoder parts them at
    // blanks, which the names of our folders have not; those above them may.
    const QDir parent(QFileInfo(surroundings_.shell.s_Export_Folder()).path());
    std::vector<WebPFrame> relative;
    for (const WebPFrame &picture : pictures)
        relative.push_back({parent.relativeFilePath(picture.file), picture.milliseconds});
    const QString list = surroundings_.shell.s_Export_Folder() + QStringLiteral("/arguments.txt");
    QFile file(list);
    const QByteArray text = encoder_arguments::webpArguments(choices.loops, relative, coding,
                                                             parent.relativeFilePath(output))
                                .join(u'\n')
                                .toUtf8();
    if (!file.open(QIODevice::WriteOnly, QFile::ReadOwner | QFile::WriteOwner) ||
        file.write(text) != text.size() || !file.flush())
        return {.kind = ToolExit::Kind::NotStarted, .reason = file.errorString()};
    const ToolExit exit =
        RunToolWithProgress(surroundings_.shell.simg2webpPath(), {list}, type, parent.path());
    file.remove();
    return exit;
}

std::optional<QString> Exporter::scaleForWebP(Frames frames, const ExportChoices &choices) {
    const std::vector<TimedFrame> each = withoutRepeats(frames);
    // An attempt before this one, at another size or rate, may have left more of them.
    removeStaged(surroundings_.shell.s_Export_Folder());
    stageFrames(surroundings_.shell.s_Output_Folder(), each, surroundings_.shell.s_Export_Folder());
    surroundings_.progress.setText(qtTrId("IDD_PROGRESS_SCALING"));
    // One a second, see `scalingArguments`; this encoder's stamps tell where a picture ends.
    exporting.setI_Orig_Duration_in_Seconds(static_cast<double>(each.size()));
    const ToolExit exit = RunToolWithProgress(
        surroundings_.shell.sffmpegPath(),
        encoder_arguments::scalingArguments(surroundings_.shell.s_Export_Folder(), choices.width,
                                            choices.height),
        PROGRESS_TYPE_PREPARATION);
    surroundings_.progress.setText(qtTrId("IDD_PROGRESS_PICTURES"));
    if (!exit.succeeded())
        return refusedSizeText(scaler, exit, choices.width, choices.height);
    return std::nullopt;
}
