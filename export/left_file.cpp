// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/left_file.h"

#include "export/encoder_arguments.h"
#include "record/save/atomic_file.h"
#include "shell/file_calls.h"
#include "shell/note_text.h"

#include <QFile>
#include <QFileInfo>

#include <array>

namespace left_file {

namespace {

constexpr auto firstLine = "Tovarel file 1";
constexpr mode_t forTheUserAlone = 0600;
constexpr qint64 longestNote = 4096; // bytes

// Bounds beyond which a number is a mistake.
constexpr double longestSide = 1'000'000;
constexpr double mostSeconds = 1e9;
constexpr double mostBytes = 1e18;

std::optional<FinishedFile> fileAt(const QString &path) {
    const std::optional<std::uint64_t> size = sizeOfOwnFile(path);
    if (!size || !sizeOfOwnFile(noteFile(path)))
        return std::nullopt;
    QFile note(noteFile(path));
    if (!note.open(QIODevice::ReadOnly))
        return std::nullopt;
    std::array<note_text::Entry, 4> entries{{{"bytes", 1, mostBytes, true},
                                             {"width", 1, longestSide, true},
                                             {"height", 1, longestSide, true},
                                             {"seconds", 0, mostSeconds, false}}};
    if (!note_text::read(note.read(longestNote), firstLine, entries) ||
        static_cast<double>(*size) != *entries[0].value)
        return std::nullopt;
    FinishedFile file;
    file.path = path;
    file.pixels = {static_cast<int>(*entries[1].value), static_cast<int>(*entries[2].value)};
    file.seconds = *entries[3].value;
    file.made = QFileInfo(path).lastModified();
    file.isFromEarlierStart = true;
    return file;
}

} // namespace

QString noteFile(const QString &file) { return file + QStringLiteral(".txt"); }

void writeNote(const FinishedFile &file) {
    using note_text::line;
    const QByteArray text = QByteArray(firstLine) + '\n' +
                            line("bytes", QByteArray::number(QFile(file.path).size())) +
                            line("width", QByteArray::number(file.pixels.width())) +
                            line("height", QByteArray::number(file.pixels.height())) +
                            line("seconds", note_text::exact(file.seconds));
    const std::array parts{std::span(reinterpret_cast<const std::uint8_t *>(text.constData()),
                                     static_cast<std::size_t>(text.size()))};
    writeFileAtomically(noteFile(file.path), parts, forTheUserAlone);
}

void removeNote(const QString &file) { QFile::remove(noteFile(file)); }

std::optional<FinishedFile> find(const QString &exportFolder) {
    for (const QString &path :
         {encoder_arguments::gifFile(exportFolder), encoder_arguments::webpFile(exportFolder),
          encoder_arguments::mp4File(exportFolder)})
        if (std::optional<FinishedFile> file = fileAt(path))
            return file;
    return std::nullopt;
}

} // namespace left_file
