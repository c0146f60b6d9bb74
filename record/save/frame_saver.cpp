// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/save/frame_saver.h"

#include "record/save/atomic_file.h"
#include "shell/file_calls.h"
#include "shell/working_folders.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <exception>
#include <utility>

namespace {

/// A frame whose result has not come yet; no error has this number.
constexpr int pending = -1;

constexpr std::chrono::milliseconds betweenLooks(5);

/// Waits for the result of the run before; empty for the first run, which has none before it.
template <class T> T resultOf(std::future<T> &future) {
    return future.valid() ? future.get() : T();
}

} // namespace

FrameSaver::FrameSaver(std::vector<Image> frames, QString folder, Report report)
    : frames_(std::move(frames)), folder_(std::move(folder)), report_(std::move(report)),
      format_({frames_.front().size(), frames_.front().hasAlpha()}),
      results_(frames_.size(), pending) {
    for (std::size_t frame = 0; frame < frames_.size(); ++frame)
        if (frame == 0 || !frames_[frame].sameAs(frames_[frame - 1]))
            runs_.push_back(frame);
    const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
    atWork_ = std::min(cores, runs_.size());
    for (std::size_t thread = 0; thread < std::min(cores, runs_.size()); ++thread)
        threads_.emplace_back([this] {
            work();
            --atWork_;
        });
}

FrameSaver::~FrameSaver() {
    cancelled_ = true;
    for (std::thread &thread : threads_)
        thread.join();
}

bool FrameSaver::finish(const std::function<bool()> &givesUp) {
    report_ = [](std::uint64_t) {};
    while (atWork_ > 0) {
        if (givesUp())
            return false;
        std::this_thread::sleep_for(betweenLooks);
    }
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    return reported_ == count() && missing_ == 0;
}

void FrameSaver::work() {
    ImageReader reader;
    std::unique_ptr<PngBandWriter> writer;
    while (!cancelled_) {
        Promised own;
        Awaited before;
        std::size_t run = 0;
        {
            const std::lock_guard lock(taking_);
            if (nextRun_ >= runs_.size())
                return;
            run = nextRun_++;
            before = std::exchange(lastTaken_, {own.bands.get_future(), own.file.get_future()});
        }
        saveRun(run, own, before, reader, writer);
    }
}

void FrameSaver::saveRun(std::size_t run, Promised &own, Awaited &before, ImageReader &reader,
                         std::unique_ptr<PngBandWriter> &writer) {
    const std::size_t first = runs_[run];
    const std::size_t end = run + 1 < runs_.size() ? runs_[run + 1] : frames_.size();
    bool changed = true;
    const PngBands bands = encode(run, before, reader, writer, changed);
    own.bands.set_value(bands);
    own.file.set_value(writeRun(first, end, bands, changed ? QString() : resultOf(before.file)));
}

PngBands FrameSaver::encode(std::size_t run, Awaited &before, ImageReader &reader,
                            std::unique_ptr<PngBandWriter> &writer, bool &changed) const try {
    const Image &frame = frames_[runs_[run]];
    const QImage rows = rowsOf(frame, format_, reader);
    if (rows.isNull())
        return {};
    if (!writer)
        writer = std::make_unique<PngBandWriter>(format_);
    const auto changes = run == 0 ? std::nullopt : frame.changesSince(frames_[runs_[run - 1]]);
    PngBands bands(static_cast<std::size_t>(bandCount(format_)));
    std::size_t written = 0;
    for (std::size_t band = 0; band < bands.size(); ++band) {
        const int number = static_cast<int>(band);
        if (changes && !changes->intersects(bandIn(format_, number)))
            continue;
        bands[band] = writer->write(rows, number);
        ++written;
    }
    changed = written > 0;
    // Only now, when what is new has been done beside it, the run before is waited for.
    const PngBands bandsBefore = written < bands.size() ? resultOf(before.bands) : PngBands();
    for (std::size_t band = 0; band < bands.size(); ++band)
        if (!bands[band])
            bands[band] = bandsBefore.empty() ? writer->write(rows, static_cast<int>(band))
                                              : bandsBefore[band];
    return bands;
} catch (const std::exception &) {
    return {};
}

QString FrameSaver::writeRun(std::size_t first, std::size_t end, const PngBands &bands,
                             QString written) {
    const PngFile file(bands, format_);
    for (std::size_t frame = first; frame < end && !cancelled_; ++frame) {
        const QString path = working_folders::frameFile(folder_, frame);
        int error = bands.empty() ? ENOMEM : 0;
        // A refused link (a file system without any, or too many of them) becomes a fresh file,
        // which takes the links of the frames that follow.
        const bool linked = !written.isEmpty() && linkFile(written, path) == 0;
        if (!linked && error == 0) {
            error = saveImageAtPath(file, path);
            if (error == 0)
                written = path;
        }
        reportFrame(frame, error);
    }
    return written;
}

int FrameSaver::saveImageAtPath(const PngFile &image, const QString &path) {
    return writeFileAtomically(path, image.parts());
}

void FrameSaver::reportFrame(std::size_t frame, int error) {
    QMetaObject::invokeMethod(
        this, [this, frame, error] { onSaved(frame, error); }, Qt::QueuedConnection);
}

void FrameSaver::onSaved(std::size_t frame, int error) {
    results_[frame] = error;
    // Threads end out of step; the reports go out in the frames' order.
    while (reported_ < results_.size() && results_[reported_] != pending) {
        const int result = results_[reported_];
        ++reported_;
        if (result != 0 && ++missing_ == 1)
            reason_ = qt_error_string(result);
        report_(reported_);
    }
}
