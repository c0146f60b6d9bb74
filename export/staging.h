// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

/// Lays the frames `first` to `last` of the recording out as a fresh sequence from 0 in the export
/// folder, and the first ones of them in the palette folder. Files are linked, since nobody writes
/// into an existing frame file, or copied where a link is refused. A frame that cannot be staged is
/// left out, the others keep their numbers. Returns how many were staged.
std::uint64_t stageFrames(const QString &recordingFolder, std::uint64_t first, std::uint64_t last,
                          const QString &exportFolder, const QString &paletteFolder);
