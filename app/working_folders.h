// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

/// The three working folders and the names of the frame files in them. Paths and names only; the
/// recording, the trim editor and the exports write and read the files.
namespace working_folders {

/// A working folder in the Documents folder, by its name there.
QString recordingFolder(const QString &documentsFolder);
QString exportFolder(const QString &documentsFolder);
QString paletteFolder(const QString &documentsFolder);

/// The file of frame `number` in the recording folder: "<folder>/frame00000007.png", at least eight
/// digits.
QString frameFile(const QString &recordingFolder, std::uint64_t number);

/// The file of staged frame `number` in an encoder's folder: "<folder>/image7.png".
QString stagedFile(const QString &folder, std::uint64_t number);

/// Makes the folder and those above it, unless something of that name exists: a plain file counts
/// as present. False when it could not be made.
bool ensureFolder(const QString &folder);

} // namespace working_folders
