// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <filesystem>

/// The three working folders and the names of the frame files in them. Paths and names only; the
/// recording, the trim editor and the exports write and read the files.
namespace working_folders {

/// A working folder in the Documents folder, by its name there.
QString recordingFolder(const QString &documentsFolder);
QString exportFolder(const QString &documentsFolder);
QString paletteFolder(const QString &documentsFolder);

/// Where a recording goes that a new one replaces: beside the recording folder, wherever that
/// really is.
QString previousFolder(const QString &recordingFolder);

/// The file of frame `number` in the recording folder: "<folder>/frame00000007.png", at least eight
/// digits.
QString frameFile(const QString &recordingFolder, std::uint64_t number);

/// The file of staged frame `number` in an encoder's folder: "<folder>/image7.png".
QString stagedFile(const QString &folder, std::uint64_t number);

/// Makes the folder, for the user alone (mode 0700), and those above it, unless something of that
/// name exists: a plain file counts as present, a folder is closed to others. False when it could
/// not be made.
bool ensureFolder(const QString &folder);

/// Removes every entry of the folder and of the folders in it (hidden files and broken links too),
/// and keeps the folder itself. What cannot be removed is logged as "oops: ..." and keeps none of
/// its neighbours. Entries of the folder itself with a name in `kept` stay.
void removeContent(const std::filesystem::path &folder, const QStringList &kept = {});
void removeContent(const QString &folder, const QStringList &kept = {});

} // namespace working_folders
