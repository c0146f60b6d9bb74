// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif_file.h"
#include "export/size_forecast.h"

#include <cstddef>
#include <optional>

/// A GIF that could be made of what is kept and chosen now.
struct GifPlan {
    GifFileJob job; ///< Without a file; without frames where none can be made.
    /// How much each frame changes against the one before.
    SizeForecast forecast;
    /// A frame to be tried for the forecast: it and the one before.
    std::optional<std::size_t> sampled = {};
    GifFileJob sample = {};
};
