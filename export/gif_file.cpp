// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif_file.h"

#include "export/gif/scaler.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <new>

namespace {

// Bytes for each pixel of a picture of the file: the recorded frame and the canvas, 4 each; a
// picture of 4 for each thread and one more; what two codings at a time work with, 6 each.
constexpr std::uint64_t bytesPerPixel = 4 + 4 + 4 * (gifThreads + 1) + 2 * 6;

// Each different colour of a picture takes about 160 bytes (measured on noise: 157). Photographs
// seldom have more of them than a quarter of their pixels.
constexpr std::uint64_t bytesPerColour = 160;
constexpr std::uint64_t pixelsPerColour = 4;

constexpr std::uint64_t tables = 8 << 20; // whatever the size

// The scaler holds its result, and the recording's rows that a band of it is made of, 36 bytes a
// pixel.
constexpr std::uint64_t scaledBytesPerPixel = 4;
constexpr std::uint64_t acrossBytesPerPixel = 36;
constexpr double bandRows = 32 + 6;

gif::Outcome encode(const GifFileJob &job, const gif::Sink &takeBytes, const std::stop_token &stop,
                    std::uint64_t &firstFrame) {
    std::uint64_t bytes = 0;
    const gif::Sink sink = [&takeBytes, &bytes](std::span<const std::uint8_t> more) {
        bytes += more.size();
        return takeBytes(more);
    };
    gif::Options options{.width = job.size.width(), .height = job.size.height()};
    options.tolerance = job.tolerance;
    options.repeats = job.repeats;
    options.threads = gifThreads;
    options.sizeLimit = job.sizeLimit;
    options.progress = [&job, &bytes, &firstFrame](std::int64_t frames) {
        // The last picture is kept back until it is known how long it is shown.
        if (frames == 2)
            firstFrame = bytes;
        if (job.progress)
            job.progress(frames, bytes);
    };
    if (job.sourceSize.isEmpty())
        return {.end = gif::Outcome::End::NoFrames};
    if (job.size == job.sourceSize)
        return gif::encode(*job.source, options, sink, stop);
    gif::ScalingSource scaled(*job.source, job.sourceSize.width(), job.sourceSize.height(),
                              options.width, options.height, stop);
    return gif::encode(scaled, options, sink, stop);
}

} // namespace

GifFileResult writeGifFile(const GifFileJob &job, const std::stop_token &stop) {
    GifFileResult result;
    QFile file(job.file);
    const bool onlyCounts = job.file.isEmpty();
    // The encoder hands out whole pictures; a buffer in between would lose the reason of a failure.
    if (!onlyCounts && !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered,
                                  QFile::ReadOwner | QFile::WriteOwner)) {
        result.writeError = file.errorString();
        return result;
    }
    const gif::Sink sink = [&file, onlyCounts](std::span<const std::uint8_t> bytes) {
        if (onlyCounts)
            return true;
        // A full disk takes what still fits, and names the reason at the next attempt only.
        while (!bytes.empty()) {
            const qint64 written = file.write(reinterpret_cast<const char *>(bytes.data()),
                                              static_cast<qint64>(bytes.size()));
            if (written <= 0)
                return false;
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        }
        return true;
    };
    try {
        result.outcome = encode(job, sink, stop, result.firstFrame);
    } catch (const std::bad_alloc &) {
        result.outOfMemory = true;
    }
    if (result.outcome.end == gif::Outcome::End::SinkFailed)
        result.writeError = file.errorString();
    if (!onlyCounts && !result.isComplete())
        file.remove();
    return result;
}

std::uint64_t gifWorkingMemory(QSize recorded, QSize size) {
    const auto pixels = [](QSize of) {
        return static_cast<std::uint64_t>(of.width()) * static_cast<std::uint64_t>(of.height());
    };
    // The frame as it was recorded comes with the reader.
    std::uint64_t bytes = tables + 4 * pixels(recorded) + bytesPerPixel * pixels(size) +
                          bytesPerColour * (pixels(size) / pixelsPerColour);
    if (size == recorded)
        return bytes;
    const double ratio = std::max(1.0, double(recorded.height()) / std::max(size.height(), 1));
    const auto rows = static_cast<std::uint64_t>(
        std::min<double>(recorded.height(), std::ceil(bandRows * ratio)));
    return bytes + scaledBytesPerPixel * pixels(size) +
           acrossBytesPerPixel * rows * static_cast<std::uint64_t>(size.width());
}
