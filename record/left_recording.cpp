// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/left_recording.h"

#include "record/save/atomic_file.h"
#include "shell/working_folders.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <sys/stat.h>
#include <unistd.h>

#include <array>

namespace left_recording {

namespace {

constexpr mode_t forTheUserAlone = 0600;
constexpr qint64 longestNote = 4096; // bytes

/// The size of an ordinary file of this user. A link may lead anywhere, and is none.
std::optional<std::uint64_t> sizeOfOwn(const QString &path) {
    struct stat found {};
    if (lstat(QFile::encodeName(path).constData(), &found) != 0 || !S_ISREG(found.st_mode) ||
        found.st_uid != geteuid())
        return std::nullopt;
    return static_cast<std::uint64_t>(found.st_size);
}

std::optional<std::uint64_t> bytesOf(const QString &folder, std::uint64_t frames) {
    std::uint64_t bytes = 0;
    for (std::uint64_t frame = 0; frame < frames; ++frame) {
        const std::optional<std::uint64_t> size =
            sizeOfOwn(working_folders::frameFile(folder, frame));
        if (!size || *size == 0)
            return std::nullopt;
        bytes += *size;
    }
    return bytes;
}

} // namespace

QString noteFile(const QString &recordingFolder) {
    return recordingFolder + QStringLiteral("/recording.txt");
}

bool writeNote(const QString &recordingFolder, RecordingNote note) {
    const std::optional<std::uint64_t> bytes = bytesOf(recordingFolder, note.frames);
    if (!bytes)
        return false;
    note.bytes = *bytes;
    const QByteArray text = textOfNote(note);
    const std::array parts{std::span(reinterpret_cast<const std::uint8_t *>(text.constData()),
                                     static_cast<std::size_t>(text.size()))};
    return writeFileAtomically(noteFile(recordingFolder), parts, forTheUserAlone) == 0;
}

void removeNote(const QString &recordingFolder) { QFile::remove(noteFile(recordingFolder)); }

std::optional<RecordingNote> find(const QString &recordingFolder) {
    if (!sizeOfOwn(noteFile(recordingFolder)))
        return std::nullopt;
    QFile file(noteFile(recordingFolder));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const std::optional<RecordingNote> note = noteFromText(file.read(longestNote));
    if (!note || bytesOf(recordingFolder, note->frames) != note->bytes)
        return std::nullopt;
    if (QFileInfo::exists(working_folders::frameFile(recordingFolder, note->frames)))
        return std::nullopt;
    const QSize size = QImageReader(working_folders::frameFile(recordingFolder, 0), "png").size();
    return size == note->size ? note : std::nullopt;
}

} // namespace left_recording
