// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/left_recording.h"

#include "record/save/atomic_file.h"
#include "shell/file_calls.h"
#include "shell/working_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>

#include <sys/types.h>

#include <algorithm>
#include <array>

namespace left_recording {

namespace {

constexpr mode_t forTheUserAlone = 0600;
constexpr qint64 longestNote = 4096; // bytes

/// Whether all that is in the folder may be of a recording. What else bears the folder's name is
/// not ours to empty.
bool holdsNothingElse(const QString &folder) {
    static const QRegularExpression ours(QStringLiteral("^(frame\\d{8,}\\.png|recording\\.txt)$"));
    const QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden |
                                                     QDir::System | QDir::NoDotAndDotDot);
    return std::ranges::all_of(names,
                               [](const QString &name) { return ours.match(name).hasMatch(); });
}

std::optional<std::uint64_t> bytesOf(const QString &folder, std::uint64_t frames) {
    std::uint64_t bytes = 0;
    for (std::uint64_t frame = 0; frame < frames; ++frame) {
        const std::optional<std::uint64_t> size =
            sizeOfOwnFile(working_folders::frameFile(folder, frame));
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
    if (!sizeOfOwnFile(noteFile(recordingFolder)))
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

bool isThere(const QString &recordingFolder) {
    return QFileInfo::exists(noteFile(recordingFolder));
}

bool setAside(const QString &recordingFolder) {
    const QString aside = working_folders::previousFolder(recordingFolder);
    removeAside(recordingFolder);
    // The folder itself, not a link that leads to it.
    const QString real = QFileInfo(recordingFolder).canonicalFilePath();
    return !real.isEmpty() && QDir().rename(real, aside) && working_folders::ensureFolder(real);
}

void removeAside(const QString &recordingFolder) {
    const QString aside = working_folders::previousFolder(recordingFolder);
    if (holdsNothingElse(aside))
        working_folders::removeContent(aside);
    QDir().rmdir(aside);
}

std::optional<RecordingNote> findAtStart(const QString &recordingFolder) {
    const std::optional<RecordingNote> left = find(recordingFolder);
    if (left)
        return left;
    working_folders::removeContent(recordingFolder);
    // The one that replaced it did not get as far.
    const QString aside = working_folders::previousFolder(recordingFolder);
    const std::optional<RecordingNote> before = find(aside);
    const QString real = QFileInfo(recordingFolder).canonicalFilePath();
    const bool isBack = before && exchangeFolders(real, aside) == 0;
    if (isBack || !before)
        removeAside(recordingFolder);
    return isBack ? before : std::nullopt;
}

} // namespace left_recording
