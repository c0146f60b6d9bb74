// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/encoder_arguments.h"
#include "export/export_mark.h"
#include "export/exporter.h"
#include "export/frame_file_source.h"
#include "export/frame_store_source.h"
#include "export/gif_failure.h"
#include "export/gif_plan.h"
#include "export/loops_text.h"
#include "export/made_file.h"
#include "export/save_request.h"
#include "platform/text_number.h"
#include "record/recorder.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <thread>

using frame_timing::TimedFrame;

namespace {

constexpr double barSteps = 1000; // that the bar is moved in, at most

/// What there is to say about the finished GIF, beside its place.
QString noteAbout(const MadeFile &made, std::size_t wanted) {
    if (made.frames < wanted)
        return qtTrId("IDD_STATUS_GAP", static_cast<int>(wanted))
            .arg(number_text::count(made.frames));
    return made.moves ? QString() : qtTrId("IDD_STATUS_STILL");
}

/// The frames of the store, which is whole even where files are missing; none of them where it is
/// not.
std::vector<FrameStoreSource::Shown> storedFrames(const std::optional<std::vector<Image>> &store,
                                                  std::span<const TimedFrame> frames) {
    std::vector<FrameStoreSource::Shown> shown;
    for (const TimedFrame &each : frames) {
        if (!store || each.source >= store->size())
            return {};
        shown.push_back({(*store)[each.source], static_cast<std::int64_t>(each.delay)});
    }
    return shown;
}

std::vector<FrameFileSource::Shown> frameFiles(const QString &folder,
                                               std::span<const TimedFrame> frames) {
    std::vector<FrameFileSource::Shown> shown;
    for (const TimedFrame &each : frames)
        shown.push_back({working_folders::frameFile(folder, each.source),
                         static_cast<std::int64_t>(each.delay)});
    return shown;
}

} // namespace

std::optional<QString> gifFailure(const GifFileResult &result, const GifFileJob &job,
                                  const QString &frames) {
    if (result.outOfMemory)
        return qtTrId("IDD_GIF_NO_MEMORY");
    if (!result.writeError.isEmpty())
        return qtTrId("IDD_GIF_NOT_WRITTEN").arg(job.file, result.writeError);
    if (result.outcome.end == gif::Outcome::End::NoFrames)
        return qtTrId("IDD_GIF_NO_FRAMES").arg(frames);
    return std::nullopt;
}

void Exporter::OnGIFExport() { generateGIF({.mayLowerChosen = false, .copied = false}); }

void Exporter::generateAndCopy() { generateGIF({.mayLowerChosen = false, .copied = true}); }

void Exporter::generateGIF(GifWish wish) {
    if (!mayExport())
        return;
    const ExportMark mark(exporting);
    const ExportChoices wanted = choices();
    const bool withoutAsking = wish.copied || mustNotAsk();
    std::optional<QString> reason = refusal(wanted);
    // The other encoder judges sizes itself, and knows no limit.
    if (!reason && wanted.preset != GifPreset::Classic) {
        reason = GIFSizeRefusal(wanted);
        if (!reason && wanted.limit.isWrong)
            reason = qtTrId("IDD_LIMIT_NOT_NUMBER");
    }
    const LoopsTextProblem loops = loopsTextProblem(wanted.loops);
    if (!reason && (loops == LoopsTextProblem::Negative || loops == LoopsTextProblem::TooLarge))
        reason = qtTrId("IDD_LOOPS_REFUSED").arg(number_text::count(mostLoops));
    if (reason) {
        surroundings_.alerts.run(AlertKind::Error, *reason);
        return;
    }
    if (mustAskFirst([this, wish] { generateGIF(wish); }))
        return;
    beginExport(qtTrId("IDD_PROGRESS_GIF"));
    working_folders::removeContent(surroundings_.shell.s_Pallete_Folder());
    working_folders::ensureFolder(surroundings_.shell.s_Pallete_Folder());
    const std::vector<TimedFrame> frames =
        frame_timing::timedFrames(timingRequest(wanted), frame_timing::gifTicks);
    MadeFile made;
    if (wanted.preset == GifPreset::Classic)
        made = makeClassicGIF(frames, wanted);
    else if (wanted.limit.bytes)
        made = makeFittingGIF(wanted, wish.mayLowerChosen);
    else
        made = makeGIF(frames, wanted);
    if (endedWithoutResult(made.failure))
        return;
    if (made.needsLowering) {
        askToLower(wanted,
                   [this, wish] { generateGIF({.mayLowerChosen = true, .copied = wish.copied}); });
        return;
    }
    const QString note = made.fitNote.isEmpty() ? noteAbout(made, frames.size()) : made.fitNote;
    surroundings_.showStatus(note);
    saveResult({.file = encoder_arguments::gifFile(surroundings_.shell.s_Export_Folder()),
                .note = note,
                .withoutAsking = withoutAsking,
                .copied = wish.copied},
               frames, frame_timing::gifTicks, wanted);
}

GifFileJob Exporter::jobFor(Frames frames, const ExportChoices &choices) const {
    GifFileJob job{.source = {},
                   .sourceSize = {},
                   .size = QSize(static_cast<int>(integerValue(choices.width)),
                                 static_cast<int>(integerValue(choices.height))),
                   .tolerance = presetTolerance(choices.preset),
                   .file = {},
                   .repeats = repeatsOf(choices.loops),
                   .frames = frames.size()};
    auto stored = storedFrames(recorder_.recording.array_Images, frames);
    if (stored.empty()) {
        auto source = std::make_unique<FrameFileSource>(
            frameFiles(surroundings_.shell.s_Output_Folder(), frames));
        job.sourceSize = source->size();
        job.source = std::move(source);
    } else {
        auto source = std::make_unique<FrameStoreSource>(std::move(stored));
        job.sourceSize = source->size();
        job.source = std::move(source);
    }
    return job;
}

GifPlan Exporter::planGIF(const ExportChoices &choices) const {
    const std::vector<TimedFrame> frames =
        frame_timing::timedFrames(timingRequest(choices), frame_timing::gifTicks);
    GifPlan plan{.job = jobFor(frames, choices), .images = {}};
    for (const auto &shown : storedFrames(recorder_.recording.array_Images, frames))
        plan.images.push_back(shown.image);
    return plan;
}

MadeFile Exporter::makeGIF(Frames frames, const ExportChoices &choices) {
    GifFileJob job = jobFor(frames, choices);
    job.file = encoder_arguments::gifFile(surroundings_.shell.s_Export_Folder());
    const GifFileResult result = runEncoder(job);
    return {.failure = gifFailure(result, job, surroundings_.shell.s_Output_Folder()),
            .frames = static_cast<std::uint64_t>(result.outcome.frames),
            .moves = result.outcome.pictures > 1};
}

GifFileResult Exporter::runEncoder(GifFileJob &job) {
    surroundings_.progress.setValue(0.0);
    double shown = 0;
    const auto total = static_cast<double>(job.frames);
    job.progress = [this, total, &shown](std::int64_t done, std::uint64_t) {
        // The window has more to do than to follow a bar by less than it can show.
        const double share = std::floor(static_cast<double>(done) * barSteps / total);
        if (share <= shown)
            return;
        shown = share;
        QMetaObject::invokeMethod(
            this, [this, share] { surroundings_.progress.setValue(share * 100.0 / barSteps); },
            Qt::QueuedConnection);
    };
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
        const auto tell = [&ended] { ended = true; };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
    while (!ended)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return result;
}
