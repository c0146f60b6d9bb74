// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif_file.h"
#include "export/size_forecast.h"
#include "platform/image/image.h"

#include <cstddef>
#include <span>
#include <vector>

/// A GIF that could be made of what is kept and chosen now. Made on the main thread; what takes
/// time with many frames, below, may be asked for in any other.
struct GifPlan {
    GifFileJob job;            ///< Without a file; without frames where none can be made.
    std::vector<Image> images; ///< Of each frame; none of them where there are only files.
};

/// What can be said of the size of a file of so many frames by how much each changes against the
/// one before; all of them alike where there are no images.
SizeForecast forecastOf(std::size_t frames, std::span<const Image> images);

/// The making of one frame after the one before it. The plan has images; `frame` is not the first.
GifFileJob sampleOf(const GifPlan &plan, std::size_t frame);
