// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record/recording_note.h"

#include <QString>

/// A recording that was saved to the end and is in the recording folder, as it is found by a
/// start after a crash, a kill or the end of the session.
namespace left_recording {

/// The note's file, beside the frames in the recording folder.
QString noteFile(const QString &recordingFolder);

/// Writes the note for the frames in the folder, for the user alone (mode 0600) and whole or not at
/// all; `note.bytes` is worked out here. False when frames are missing or it cannot be written.
bool writeNote(const QString &recordingFolder, RecordingNote note);

/// Takes the note away: the frames will not be offered any more.
void removeNote(const QString &recordingFolder);

/// The note of a recording that is whole: all its frames are there, as ordinary files of this user,
/// none beyond, with as many bytes as were written, the first one of the right size. None
/// otherwise. The frames are not decoded.
std::optional<RecordingNote> find(const QString &recordingFolder);

/// Whether a note is there, of a recording that was saved to the end.
bool isThere(const QString &recordingFolder);

// The recording before it -------------------------------------------------------------------------

/// Moves the recording out of the way of a new one, in place of one that was moved there before;
/// the recording folder is empty then. False where it cannot be: it stays where it is.
bool setAside(const QString &recordingFolder);

/// Removes what was moved out of the way.
void removeAside(const QString &recordingFolder);

/// What a start finds: the recording that is whole, or else the one before it, which then takes its
/// place. The folders are emptied of everything else.
std::optional<RecordingNote> findAtStart(const QString &recordingFolder);

} // namespace left_recording
