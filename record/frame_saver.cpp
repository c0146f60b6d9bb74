// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/frame_saver.h"

#include "app/working_folders.h"
#include "record/atomic_file.h"

#include <QMetaObject>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace {

/// A frame whose result has not come yet; no error has this number.
constexpr int pending = -1;

} // namespace

FrameSaver::FrameSaver(std::vector<Image> frames, QString folder, Report report)
    : frames_(std::move(frames)), folder_(std::move(folder)),
      report_(std::move(report)), format_{frames_.front().size(), frames_.front().hasAlpha()},
      results_(frames_.size(), pending) {
    for (std::size_t frame = 0; frame < frames_.size(); ++frame)
        if (frame == 0 || !frames_[frame].sameAs(frames_[frame - 1]))
            runs_.push_back(frame);
    const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
    for (std::size_t thread = 0; thread < std::min(cores, runs_.size()); ++thread)
        threads_.emplace_back([this] { work(); });
}

FrameSaver::~FrameSaver() {
    cancelled_ = true;
    for (std::thread &thread : threads_)
        thread.join();
}

void FrameSaver::work() {
    while (!cancelled_) {
        const std::size_t run = nextRun_++;
        if (run >= runs_.size())
            return;
        saveRun(runs_[run], run + 1 < runs_.size() ? runs_[run + 1] : frames_.size());
    }
}

void FrameSaver::saveRun(std::size_t first, std::size_t end) {
    const std::vector<std::uint8_t> file = encodePng(frames_[first].toQImage(), format_);
    QString written;
    for (std::size_t frame = first; frame < end && !cancelled_; ++frame) {
        const QString path = working_folders::frameFile(folder_, frame);
        int error = file.empty() ? ENOMEM : 0;
        // A refused link (a file system without any, or too many of them) becomes a fresh file,
        // which takes the links of the frames that follow.
        const bool linked = !written.isEmpty() && linkFile(written, path) == 0;
        if (!linked && error == 0) {
            error = writeFileAtomically(path, file);
            if (error == 0)
                written = path;
        }
        reportFrame(frame, error);
    }
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
