// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/note_text.h"

#include <algorithm>
#include <charconv>

namespace note_text {

namespace {

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

QByteArray line(const char *name, const QByteArray &value) {
    return QByteArray(name) + ' ' + value + '\n';
}

QByteArray exact(double number) {
    constexpr int digits = 17;
    return QByteArray::number(number, 'g', digits);
}

bool read(QByteArrayView text, std::string_view firstLine, std::span<Entry> entries) {
    std::string_view rest(text.data(), static_cast<std::size_t>(text.size()));
    for (bool first = true; !rest.empty(); first = false) {
        const std::size_t end = rest.find('\n');
        if (end == std::string_view::npos)
            return false;
        const std::string_view line = rest.substr(0, end);
        if (first ? line != firstLine : !take(line, entries))
            return false;
        rest.remove_prefix(end + 1);
    }
    return std::ranges::all_of(entries, [](const Entry &entry) { return entry.value.has_value(); });
}

} // namespace note_text
