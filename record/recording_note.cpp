// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recording_note.h"

#include <array>
#include <charconv>
#include <span>
#include <string_view>

namespace {

constexpr std::string_view firstLine = "Tovarel recording 1";

// Bounds beyond which a number is a mistake: a year at 60 frames a second, and the longest side
// that a PNG file may have for the decoder.
constexpr double mostSeconds = 366.0 * 24 * 60 * 60;
constexpr double mostFrames = mostSeconds * 60;
constexpr double longestSide = 1'000'000;
constexpr double mostBytes = 1e18;
// Frames per second. What was measured may be a little beyond the rates that can be chosen.
constexpr double slowest = 0.001;
constexpr double fastest = 1000;

/// One entry of the file: its name, where its value belongs, and what it may be.
struct Entry {
    std::string_view name;
    double lowest;
    double highest;
    bool whole;
    std::optional<double> value;
};

std::optional<double> number(std::string_view text, bool whole) {
    double value = 0;
    const auto [end, error] =
        std::from_chars(text.begin(), text.end(), value,
                        whole ? std::chars_format::fixed : std::chars_format::general);
    if (error != std::errc() || end != text.end())
        return std::nullopt;
    if (whole && text.find('.') != std::string_view::npos)
        return std::nullopt;
    return value;
}

/// Takes a line's value into its entry; false for a line that spoils the note.
bool take(std::string_view line, std::span<Entry> entries) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos)
        return false;
    for (Entry &entry : entries) {
        if (line.substr(0, blank) != entry.name)
            continue;
        const std::optional<double> value = number(line.substr(blank + 1), entry.whole);
        if (entry.value || !value || !(*value >= entry.lowest && *value <= entry.highest))
            return false;
        entry.value = value;
    }
    return true;
}

} // namespace

QByteArray textOfNote(const RecordingNote &note) {
    constexpr int exact = 17; // digits that bring a double back as it was
    const auto line = [](const char *name, const QByteArray &value) {
        return QByteArray(name) + ' ' + value + '\n';
    };
    return QByteArray(firstLine.data(), static_cast<qsizetype>(firstLine.size())) + '\n' +
           line("frames", QByteArray::number(qulonglong{note.frames})) +
           line("width", QByteArray::number(note.size.width())) +
           line("height", QByteArray::number(note.size.height())) +
           line("seconds", QByteArray::number(note.seconds, 'g', exact)) +
           line("rate", QByteArray::number(note.rate, 'g', exact)) +
           line("bytes", QByteArray::number(qulonglong{note.bytes}));
}

std::optional<RecordingNote> noteFromText(QByteArrayView text) {
    std::string_view rest(text.data(), static_cast<std::size_t>(text.size()));
    std::array entries{
        Entry{"frames", 1, mostFrames, true, {}},   Entry{"width", 1, longestSide, true, {}},
        Entry{"height", 1, longestSide, true, {}},  Entry{"seconds", 0, mostSeconds, false, {}},
        Entry{"rate", slowest, fastest, false, {}}, Entry{"bytes", 1, mostBytes, true, {}}};
    for (bool first = true; !rest.empty(); first = false) {
        const std::size_t end = rest.find('\n');
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::string_view line = rest.substr(0, end);
        if (first ? line != firstLine : !take(line, entries))
            return std::nullopt;
        rest.remove_prefix(end + 1);
    }
    for (const Entry &entry : entries)
        if (!entry.value)
            return std::nullopt;
    return RecordingNote{
        .frames = static_cast<std::uint64_t>(*entries[0].value),
        .size = {static_cast<int>(*entries[1].value), static_cast<int>(*entries[2].value)},
        .seconds = *entries[3].value,
        .rate = *entries[4].value,
        .bytes = static_cast<std::uint64_t>(*entries[5].value)};
}
