// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <sys/types.h>

#include <cstdint>
#include <span>

/// Files that are either whole or not there, for a sequence whose readers go by the names.

/// Writes `parts`, one after another, to `path`, in place of any file there, by way of a new file
/// beside it. 0, or the system's error number; nothing is left behind then. The data is not forced
/// onto the medium: it is scratch, and a crash of the system costs it anyway.
/// `mode` is the new file's, less what the umask takes.
int writeFileAtomically(const QString &path, std::span<const std::span<const std::uint8_t>> parts,
                        mode_t mode = 0666);
