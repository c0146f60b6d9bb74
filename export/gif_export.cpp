// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/export_mark.h"
#include "export/exporter.h"
#include "export/frame_file_source.h"
#include "export/frame_store_source.h"
#include "export/gif_file.h"
#include "export/made_gif.h"
#include "export/save_request.h"
#include "platform/text_number.h"
#include "record/recorder.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <thread>

using frame_timing::TimedFrame;

namespace {

constexpr double barSteps = 1000; // that the bar is moved in, at most

/// What there is to say about the finished GIF, beside its place.
QString noteAbout(const MadeGif &made, std::size_t wanted) {
    const QLocale locale;
    if (made.frames < wanted)
        return qtTrId("IDD_STATUS_GAP")
            .arg(locale.toString(qulonglong{made.frames}), locale.toString(qulonglong{wanted}));
    return made.moves ? QString() : qtTrId("IDD_STATUS_STILL");
}

/// Gives the job the frames of the store, which is whole even where files are missing; else those
/// of the files.
void feed(GifFileJob &job, const std::optional<std::vector<Image>> &store, const QString &folder,
          std::span<const TimedFrame> frames) {
    const bool stored = store && std::ranges::all_of(frames, [&](const TimedFrame &each) {
                            return each.source < store->size();
                        });
    if (stored) {
        std::vector<FrameStoreSource::Shown> shown;
        for (const TimedFrame &each : frames)
            shown.push_back({(*store)[each.source], static_cast<std::int64_t>(each.delay)});
        auto source = std::make_unique<FrameStoreSource>(std::move(shown));
        job.sourceSize = source->size();
        job.source = std::move(source);
        return;
    }
    std::vector<FrameFileSource::Shown> shown;
    for (const TimedFrame &each : frames)
        shown.push_back({working_folders::frameFile(folder, each.source),
                         static_cast<std::int64_t>(each.delay)});
    auto source = std::make_unique<FrameFileSource>(std::move(shown));
    job.sourceSize = source->size();
    job.source = std::move(source);
}

std::optional<QString> failureOf(const GifFileResult &result, const GifFileJob &job,
                                 const QString &frames) {
    if (result.outOfMemory)
        return qtTrId("IDD_GIF_NO_MEMORY");
    if (!result.writeError.isEmpty())
        return qtTrId("IDD_GIF_NOT_WRITTEN").arg(job.file, result.writeError);
    if (result.outcome.end == gif::Outcome::End::NoFrames)
        return qtTrId("IDD_GIF_NO_FRAMES").arg(frames);
    return std::nullopt;
}

} // namespace

void Exporter::OnGIFExport() {
    if (!mayExport())
        return;
    const ExportMark mark(exporting);
    const ExportChoices wanted = choices();
    std::optional<QString> reason = refusal(wanted);
    // The other encoder judges sizes itself.
    if (!reason && wanted.preset != GifPreset::Classic)
        reason = GIFSizeRefusal(wanted);
    if (reason) {
        surroundings_.alerts.run(AlertKind::Error, *reason);
        return;
    }
    if (mustAskFirst([this] { OnGIFExport(); }))
        return;
    beginExport(qtTrId("IDD_PROGRESS_GIF"));
    working_folders::removeContent(surroundings_.shell.s_Pallete_Folder());
    working_folders::ensureFolder(surroundings_.shell.s_Pallete_Folder());
    const std::vector<TimedFrame> frames =
        frame_timing::timedFrames(timingRequest(wanted), frame_timing::gifTicks);
    const MadeGif made = wanted.preset == GifPreset::Classic ? makeClassicGIF(frames, wanted)
                                                             : makeGIF(frames, wanted);
    if (endedWithoutResult(made.failure))
        return;
    const QString note = noteAbout(made, frames.size());
    surroundings_.showStatus(note);
    saveResult({.file = encoder_arguments::gifFile(surroundings_.shell.s_Export_Folder()),
                .panelTitle = QStringLiteral("Select a folder to save the GIF image"),
                .successText = surroundings_.texts.s_IDD_GIF_SAVED_OK(),
                .note = note});
}

MadeGif Exporter::makeGIF(Frames frames, const ExportChoices &choices) {
    GifFileJob job{.source = {},
                   .sourceSize = {},
                   .size = QSize(static_cast<int>(integerValue(choices.width)),
                                 static_cast<int>(integerValue(choices.height))),
                   .tolerance = presetTolerance(choices.preset),
                   .file = encoder_arguments::gifFile(surroundings_.shell.s_Export_Folder())};
    feed(job, recorder_.recording.array_Images, surroundings_.shell.s_Output_Folder(), frames);
    double shown = 0;
    const auto total = static_cast<double>(frames.size());
    job.progress = [this, total, &shown](std::int64_t done) {
        // The window has more to do than to follow a bar by less than it can show.
        const double share = std::floor(static_cast<double>(done) * barSteps / total);
        if (share <= shown)
            return;
        shown = share;
        QMetaObject::invokeMethod(
            this, [this, share] { surroundings_.progress.setValue(share * 100.0 / barSteps); },
            Qt::QueuedConnection);
    };
    const GifFileResult result = runEncoder(job);
    return {.failure = failureOf(result, job, surroundings_.shell.s_Output_Folder()),
            .frames = static_cast<std::uint64_t>(result.outcome.frames),
            .moves = result.outcome.pictures > 1};
}

GifFileResult Exporter::runEncoder(const GifFileJob &job) {
    exporting.encoderStop = std::stop_source();
    // Cancel may have been pressed while the sheet was being shown.
    if (exporting.exportCancelled())
        exporting.encoderStop.request_stop();
    const std::stop_token stop = exporting.encoderStop.get_token();
    GifFileResult result;
    bool ended = false;
    const std::jthread encoder([this, &job, &stop, &result, &ended] {
        result = writeGifFile(job, stop);
        // After the last report of progress, and what wakes the loop.
        QMetaObject::invokeMethod(
            this, [&ended] { ended = true; }, Qt::QueuedConnection);
    });
    while (!ended)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return result;
}
