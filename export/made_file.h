// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// How the making of a file ended. A cancelled one has no failure to speak of.
struct MadeFile {
    std::optional<QString> failure; ///< Why there is none, in the user's words.
    std::uint64_t frames = 0;       ///< That a GIF holds, of those that were asked for.
    bool moves = true;              ///< False when all frames of a GIF are alike.
    /// There is none, since it only fits under the limit with a rate or a size that is lower than
    /// the user chose.
    bool needsLowering = false;
    QString fitNote = {}; ///< What was given up so that it fits under the limit.
};
