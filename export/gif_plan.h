// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif_file.h"

#include <vector>

/// A GIF that could be made of what is kept and chosen now.
struct GifPlan {
    GifFileJob job; ///< Without a file; without frames where none can be made.
    /// How much each frame changes against the one before, see `SizeForecast`.
    std::vector<double> changes;
};
