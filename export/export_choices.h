// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/fit_limit.h"
#include "export/gif_preset.h"

#include <QString>

#include <optional>

/// What the user has chosen for the file, as the controls show it. The texts are as they were
/// typed: some of them are for an encoder to judge.
struct ExportChoices {
    QString width;  ///< pixels
    QString height; ///< pixels
    QString loops;  ///< How often a GIF or a WebP is played, 0 for forever.
    GifPreset preset = GifPreset::Balanced;
    /// Frames per second; none for the recording's own rate.
    std::optional<double> rate = {};
    /// How many times as fast as it was recorded, above 0.
    double speed = 1.0;
    /// How much longer the last frame is shown, in seconds.
    double hold = 0.0;
    /// Whether the size is one that the user chose, not the recording's.
    bool customSize = false;
    /// How large a GIF may be at most.
    FitLimit limit = {};

    bool operator==(const ExportChoices &) const = default;
};
