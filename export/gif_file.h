// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/encoder.h"

#include <QSize>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

/// Writes a GIF file with the program's own encoder. Knows no window; for any thread.

struct GifFileJob {
    std::unique_ptr<gif::FrameSource> source;
    QSize sourceSize; ///< Pixels of the source's frames; empty when it has none.
    QSize size;       ///< Pixels of the file's pictures, 1 to 65,535 a side.
    float tolerance = gif::balancedTolerance;
    /// For the user alone (mode 0600); replaced when it is there. An empty name: only the bytes are
    /// counted.
    QString file;
    /// How often a player begins again, 0 for forever; none plays it once.
    std::optional<std::uint16_t> repeats = 0;
    /// How many frames the source has, where that is known.
    std::size_t frames = 0;
    /// The encoder gives up once the file is sure to be larger than this, in bytes.
    std::optional<std::uint64_t> sizeLimit = {};
    /// Called in the thread that writes, with the number of frames that are done and the bytes that
    /// all of them but the last take.
    std::function<void(std::int64_t, std::uint64_t)> progress = {};
};

struct GifFileResult {
    gif::Outcome outcome;
    std::uint64_t firstFrame = 0; ///< Bytes that the first frame took, where there is another.
    QString writeError;           ///< The system's words when the file could not be written.
    bool outOfMemory = false;     ///< Memory ran out on the way.

    bool isComplete() const {
        return !outOfMemory && writeError.isEmpty() && outcome.end == gif::Outcome::End::Complete;
    }
};

/// Threads that an encoding takes, the caller's included.
inline constexpr int gifThreads = 2;

/// Writes the file, or counts its bytes. Unless it is complete, nothing is left of it. Returns
/// within a tenth of a second when `stop` is asked for.
GifFileResult writeGifFile(const GifFileJob &job, const std::stop_token &stop);

/// Memory that this takes beside the recording, in bytes: enough for photographs, not for pictures
/// of noise, of which every pixel has a colour of its own.
std::uint64_t gifWorkingMemory(QSize recorded, QSize size);
