// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

/// What is remembered from one start to the next, in the user's settings file. Values are stored as
/// text, so that a person can read and change them.
namespace settings {

/// The stored how-to flag as a whole number; 1 is stored and returned when there is none yet. A
/// text that does not begin with a number reads as 0.
std::int64_t readShowSelectRegionHowTo();

/// Stores the flag; it is on disk when this returns. A file that cannot be written is logged and
/// otherwise ignored: the flag then holds until the program ends.
void writeShowSelectRegionHowTo(std::int64_t flag);

/// The folder that a file was last saved in, as it was stored; empty before the first. Whether it
/// still exists is for the caller to see.
QString readLastSaveFolder();
void writeLastSaveFolder(const QString &folder);

/// The word of the GIF's quality that was chosen last, as it was stored; empty before the first
/// choice. What the words are is for the exports to know.
QString readGIFQuality();
void writeGIFQuality(const QString &word);

/// Whether the mouse pointer is shown in recordings; it is, as long as nothing else was stored.
bool readShowPointer();
void writeShowPointer(bool shown);

/// Whether a finished file is saved under its preset name without a question.
bool readSaveWithoutAsking();
void writeSaveWithoutAsking(bool without);

/// Another choice that the next start begins with, as it was stored; empty before the first. What
/// the texts say is for the choice's owner to know, and to doubt: a person may have changed them.
QString readChoice(const char *name);
void writeChoice(const char *name, const QString &text);

/// Whether clicks are shown in recordings; they are not, as long as nothing else was stored.
bool readShowClicks();
void writeShowClicks(bool shown);

/// By which the desktop finds what the user chose to be recorded the last time; empty when it
/// doesn't know. It says nothing to anybody else.
QString readRestoreToken();
void writeRestoreToken(const QString &token);

/// Whether the user has been told that our window gets out of the way, and how to stop then.
bool readSteppingAsideExplained();
void writeSteppingAsideExplained();

/// Writes what is not on disk yet.
void flush();

} // namespace settings
