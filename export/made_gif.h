// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// How the making of a GIF ended. A cancelled one has no failure to speak of.
struct MadeGif {
    std::optional<QString> failure; ///< Why there is no GIF, in the user's words.
    std::uint64_t frames = 0;       ///< That it holds, of those that were asked for.
    bool moves = true;              ///< False when all of its frames are alike.
};
