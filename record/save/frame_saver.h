// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/image_reader.h"
#include "record/save/png_writer.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/// Writes the frames of a stopped recording as the files of its sequence, on as many threads as
/// there are cores. It works on handles of its own: the frame store may change meanwhile.
///
/// All files have the size and the pixel format of the first frame. A frame that is known to show
/// the same as the one before becomes a second name of that file, and where a part of it does, that
/// part is not compressed again. A frame that cannot be written is counted, and the work goes on.
///
/// Each thread takes the next frame. It compresses what changed since the frame before while that
/// one may still be under work, and waits for it only then, to take over the rest. So no more
/// frames are in memory as pixels than there are threads, and as compressed data one more.
class FrameSaver : public QObject {
    Q_OBJECT

public:
    /// Called on the thread that made the saver, from its event loop, once for each frame in their
    /// order: `done` runs 1, 2, ... up to the number of frames. `deleteLater` may be
    /// called on the saver in it.
    using Report = std::function<void(std::uint64_t done)>;

    /// Starts at once. `frames` is not empty, `folder` exists.
    FrameSaver(std::vector<Image> frames, QString folder, Report report);
    /// Stops after the frames under work and waits for them.
    ~FrameSaver() override;

    /// Waits for the last frame, without a report and without the event loop: for when the program
    /// ends. Whether all frames were written; false, too, when `givesUp`, which is asked again and
    /// again, is true before that.
    bool finish(const std::function<bool()> &givesUp);

    std::uint64_t count() const { return frames_.size(); }

    /// How many of the frames that were reported could not be written, and why the first of them;
    /// nothing while all went well.
    std::uint64_t missing() const { return missing_; }
    QString reason() const { return reason_; }

private:
    /// What a run of identical frames passes to the next one as soon as it is known; each is set
    /// in any case, to an empty value when it could not be made.
    struct Promised {
        std::promise<PngBands> bands;
        std::promise<QString> file;
    };
    struct Awaited {
        std::future<PngBands> bands;
        std::future<QString> file;
    };

    void work();
    void saveRun(std::size_t run, Promised &own, Awaited &before, ImageReader &reader,
                 std::unique_ptr<PngBandWriter> &writer);
    PngBands encode(std::size_t run, Awaited &before, ImageReader &reader,
                    std::unique_ptr<PngBandWriter> &writer, bool &changed) const;
    QString writeRun(std::size_t first, std::size_t end, const PngBands &bands, QString written);
    /// Writes one frame as a PNG file, whole or not at all. 0, or the system's error number.
    static int saveImageAtPath(const PngFile &image, const QString &path);
    void reportFrame(std::size_t frame, int error);
    void onSaved(std::size_t frame, int error);

    const std::vector<Image> frames_;
    const QString folder_;
    Report report_;
    const FrameFormat format_;

    /// First frames of the runs of identical frames; a run is one piece of work.
    std::vector<std::size_t> runs_;
    std::mutex taking_;
    std::size_t nextRun_ = 0;
    Awaited lastTaken_;
    std::atomic<bool> cancelled_ = false;
    std::vector<std::thread> threads_;
    std::atomic<std::size_t> atWork_ = 0;

    // Only for the thread that made the saver.
    std::vector<int> results_;
    std::size_t reported_ = 0;
    std::uint64_t missing_ = 0;
    QString reason_;
};
