// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image.h"
#include "record/png_writer.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <thread>
#include <vector>

/// Writes the frames of a stopped recording as the files of its sequence, on as many threads as
/// there are cores. It works on handles of its own: the frame store may change meanwhile.
///
/// All files have the size and the pixel format of the first frame. A frame that is the same
/// picture as the one before becomes a second name of that file. A frame that cannot be written is
/// counted, and the work goes on.
class FrameSaver : public QObject {
    Q_OBJECT

public:
    /// Called on the thread that made the saver, from its event loop, once for each frame in their
    /// order: `done` runs 1, 2, ... up to the number of frames. The saver may be told to
    /// `deleteLater` in it.
    using Report = std::function<void(std::uint64_t done)>;

    /// Starts at once. `frames` is not empty, `folder` exists.
    FrameSaver(std::vector<Image> frames, QString folder, Report report);
    /// Stops after the frames under work and waits for them.
    ~FrameSaver() override;

    std::uint64_t count() const { return frames_.size(); }

    /// How many of the frames that were reported could not be written, and why the first of them;
    /// nothing while all went well.
    std::uint64_t missing() const { return missing_; }
    QString reason() const { return reason_; }

private:
    void work();
    void saveRun(std::size_t first, std::size_t end);
    void reportFrame(std::size_t frame, int error);
    void onSaved(std::size_t frame, int error);

    const std::vector<Image> frames_;
    const QString folder_;
    const Report report_;
    FrameFormat format_;

    /// First frames of the runs of identical frames; a run is one piece of work.
    std::vector<std::size_t> runs_;
    std::atomic<std::size_t> nextRun_ = 0;
    std::atomic<bool> cancelled_ = false;
    std::vector<std::thread> threads_;

    // Only for the thread that made the saver.
    std::vector<int> results_;
    std::size_t reported_ = 0;
    std::uint64_t missing_ = 0;
    QString reason_;
};
