// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>
#include <span>
#include <string_view>

/// The text of a note that lies beside files of ours and says what they do not say themselves: a
/// first line that names its kind and version, then a line for each entry, a blank between its name
/// and its value. ASCII, numbers in the C locale.
namespace note_text {

/// An entry: its name, and what its value may be.
struct Entry {
    std::string_view name;
    double lowest;
    double highest;
    bool whole; ///< Whether only whole numbers are values.
    std::optional<double> value = {};
};

/// A line of it, with its end.
QByteArray line(const char *name, const QByteArray &value);

/// The number with as many digits as bring it back as it was.
QByteArray exact(double number);

/// Takes the values of the entries from the text; false for one that is no whole and sensible note.
/// Other entries are passed over; one of these that is missing, given twice or out of bounds spoils
/// the text, and so does a last line without its end.
bool read(QByteArrayView text, std::string_view firstLine, std::span<Entry> entries);

} // namespace note_text
