// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/encoder_arguments.h"
#include "platform/image/image.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <stop_token>
#include <vector>

/// A WebP that could be made of what is kept and chosen now.
struct WebPPlan {
    QString encoder; ///< Path of the tool.
    std::vector<encoder_arguments::WebPFrame> frames;
    std::vector<Image> images; ///< Of each frame; none of them where there are only files.
    std::optional<int> lossyQuality;
    /// How many pixels a picture of the file has for each one of the recording's.
    double pixels = 1;
};

/// About how many bytes it will have, by what the encoder makes of a few pictures; none where it
/// makes nothing of them. Nothing is written. For any thread; returns soon when `stop` is asked
/// for.
std::optional<std::uint64_t> estimateWebP(const WebPPlan &plan, const std::stop_token &stop);
