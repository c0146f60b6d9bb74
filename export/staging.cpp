// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/staging.h"

#include "shell/file_calls.h"
#include "shell/working_folders.h"

#include <QDir>
#include <QFile>

namespace {

bool stage(const QString &source, const QString &target) {
    if (linkFile(source, target) == 0)
        return true;
    // Another file system, one without links, or more links than a file may have.
    return QFile::copy(source, target);
}

} // namespace

std::uint64_t stageFrames(const QString &recordingFolder,
                          std::span<const frame_timing::TimedFrame> frames, const QString &folder) {
    std::uint64_t staged = 0;
    std::uint64_t number = 0;
    for (const frame_timing::TimedFrame &frame : frames)
        if (stage(working_folders::frameFile(recordingFolder, frame.source),
                  working_folders::stagedFile(folder, number++)))
            ++staged;
    return staged;
}

void removeStaged(const QString &folder) {
    QDir staged(folder);
    for (const QString &name : staged.entryList({QStringLiteral("*.png")}, QDir::Files))
        staged.remove(name);
}

std::span<const frame_timing::TimedFrame>
framesUpToGap(const QString &recordingFolder, std::span<const frame_timing::TimedFrame> frames) {
    std::size_t count = 0;
    while (count < frames.size() &&
           QFile::exists(working_folders::frameFile(recordingFolder, frames[count].source)))
        ++count;
    return frames.first(count);
}
