// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recording_note.h"

#include "shell/note_text.h"

#include <array>

namespace {

constexpr auto firstLine = "Tovarel recording 1";

// Bounds beyond which a number is a mistake: a year at 60 frames a second, and the longest side
// that a PNG file may have for the decoder.
constexpr double mostSeconds = 366.0 * 24 * 60 * 60;
constexpr double mostFrames = mostSeconds * 60;
constexpr double longestSide = 1'000'000;
constexpr double mostBytes = 1e18;
// Frames per second. What was measured may be a little beyond the rates that can be chosen.
constexpr double slowest = 0.001;
constexpr double fastest = 1000;

} // namespace

QByteArray textOfNote(const RecordingNote &note) {
    using note_text::exact;
    using note_text::line;
    return QByteArray(firstLine) + '\n' +
           line("frames", QByteArray::number(qulonglong{note.frames})) +
           line("width", QByteArray::number(note.size.width())) +
           line("height", QByteArray::number(note.size.height())) +
           line("seconds", exact(note.seconds)) + line("rate", exact(note.rate)) +
           line("bytes", QByteArray::number(qulonglong{note.bytes}));
}

std::optional<RecordingNote> noteFromText(QByteArrayView text) {
    std::array<note_text::Entry, 6> entries{{{"frames", 1, mostFrames, true},
                                             {"width", 1, longestSide, true},
                                             {"height", 1, longestSide, true},
                                             {"seconds", 0, mostSeconds, false},
                                             {"rate", slowest, fastest, false},
                                             {"bytes", 1, mostBytes, true}}};
    if (!note_text::read(text, firstLine, entries))
        return std::nullopt;
    return RecordingNote{
        .frames = static_cast<std::uint64_t>(*entries[0].value),
        .size = {static_cast<int>(*entries[1].value), static_cast<int>(*entries[2].value)},
        .seconds = *entries[3].value,
        .rate = *entries[4].value,
        .bytes = static_cast<std::uint64_t>(*entries[5].value)};
}
