// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif_file.h"

#include <QString>

#include <optional>

/// Why there is no GIF, in the user's words; none where there is one, where its making was
/// cancelled, and where it was given up for its size. `frames` is the folder of the recording.
std::optional<QString> gifFailure(const GifFileResult &result, const GifFileJob &job,
                                  const QString &frames);
