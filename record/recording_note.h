// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

#include <cstdint>
#include <optional>

/// What the frame files of a saved recording do not say themselves, kept beside them so that a
/// later start can open the recording. The file is written when the last frame is on disk: its
/// presence says that the recording was saved to the end.
///
/// The text is ASCII, a line for each entry, a blank between name and value, numbers in the C
/// locale:
///
///     Tovarel recording 1
///     frames 350
///     width 1280
///     height 800
///     seconds 70.0125
///     rate 4.99910730
///     bytes 8123456
///
/// The first line names the version of the format. Entries with other names are passed over; one of
/// these that is missing, given twice or out of bounds makes the whole text invalid, and so does a
/// last line without its end.
struct RecordingNote {
    std::uint64_t frames = 0;
    QSize size;         ///< of every frame, in pixels
    double seconds = 0; ///< recorded, pauses left out
    double rate = 0;    ///< frames per second at which it plays, unrounded
    /// Sum of the frame files' sizes, each name counted once: a file that was cut short shows.
    std::uint64_t bytes = 0;
};

QByteArray textOfNote(const RecordingNote &note);

/// None for a text that is not a whole and sensible note.
std::optional<RecordingNote> noteFromText(QByteArrayView text);
