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
    /// There is none, since it only fits under the limit with a rate or a size that is lower than
    /// the user chose.
    bool needsLowering = false;
    QString fitNote = {}; ///< What was given up so that it fits under the limit.
};
