// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

/// Pictures that show how a coding deals with them.
inline constexpr std::size_t webpSampled = 6;

/// A few of the pictures, in a row, so that what changes between them counts as it will: enough to
/// see how a coding deals with them.
template <typename Picture> std::span<Picture> webpSample(std::span<Picture> pictures) {
    const std::size_t count = std::min(pictures.size(), webpSampled);
    return pictures.subspan((pictures.size() - count) / 2, count);
}
