// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/finished_file.h"

#include <optional>

/// A finished file in the export folder that has no place of the user's yet, as it is found by a
/// later start. Whether it is finished only a note beside it says: an encoder that was ended leaves
/// a file, too.
namespace left_file {

/// What lies beside the file.
QString noteFile(const QString &file);

/// Writes the note, for the user alone, and whole or not at all. A file that cannot be noted is not
/// found.
void writeNote(const FinishedFile &file);

/// Takes the note away: the file has a place, or is gone.
void removeNote(const QString &file);

/// The file that is there, as it was made: an ordinary file of this user with as many bytes as
/// were noted. What it was made of is not known any more. None otherwise.
std::optional<FinishedFile> find(const QString &exportFolder);

} // namespace left_file
