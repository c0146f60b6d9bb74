// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/frame_timing.h"

#include <QString>

#include <cstdint>
#include <span>

/// Lays these frames of the recording out as a fresh sequence from 0 in a folder. Files are linked,
/// since nobody writes into an existing frame file, or copied where a link is refused. A frame that
/// cannot be staged is left out, the others keep their numbers. Returns how many were staged.
std::uint64_t stageFrames(const QString &recordingFolder,
                          std::span<const frame_timing::TimedFrame> frames, const QString &folder);

/// Removes the staged frames of a folder, and pictures that were made of them.
void removeStaged(const QString &folder);

/// The frames up to the first one whose file is missing in the recording's folder.
std::span<const frame_timing::TimedFrame>
framesUpToGap(const QString &recordingFolder, std::span<const frame_timing::TimedFrame> frames);
