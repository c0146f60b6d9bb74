// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/staging.h"

#include "app/working_folders.h"
#include "export/encoder_arguments.h"

#include <QFile>

#include <unistd.h>

namespace {

bool stage(const QString &source, const QString &target) {
    if (link(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) == 0)
        return true;
    // Another file system, one without links, or more links than a file may have.
    return QFile::copy(source, target);
}

} // namespace

std::uint64_t stageFrames(const QString &recordingFolder, std::uint64_t first, std::uint64_t last,
                          const QString &exportFolder, const QString &paletteFolder) {
    std::uint64_t staged = 0;
    for (std::uint64_t frame = first; frame <= last; ++frame) {
        const std::uint64_t number = frame - first;
        const QString source = working_folders::frameFile(recordingFolder, frame);
        if (stage(source, working_folders::stagedFile(exportFolder, number)))
            ++staged;
        if (number < encoder_arguments::paletteFrames)
            stage(source, working_folders::stagedFile(paletteFolder, number));
        if (frame == last)
            break; // the largest number has no successor
    }
    return staged;
}
