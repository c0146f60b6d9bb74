// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <span>

/// What the system does with files and the toolkit does not offer, without its pitfalls.

/// Writes `parts`, one after another, whatever interrupts it. 0, or the system's error number: then
/// some of it may have been written.
int writeAll(int descriptor, std::span<const std::span<const std::uint8_t>> parts);

/// Gives `existing` the second name `path`. 0, or the system's error number: a file system without
/// links, too many links, or a name that is taken.
int linkFile(const QString &existing, const QString &path);

/// The size, in bytes, of an ordinary file of this user; none for anything else. A link may lead
/// anywhere, and is none.
std::optional<std::uint64_t> sizeOfOwnFile(const QString &path);

/// Lets two folders of one file system change their names, at once where the file system can. 0, or
/// the system's error number: then both are where they were.
int exchangeFolders(const QString &one, const QString &other);
