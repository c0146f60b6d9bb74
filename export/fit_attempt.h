// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>

/// How one making of a file that is to fit under a limit ended.
struct FitAttempt {
    std::optional<QString> failure; ///< Why there is none, in the user's words.
    /// Of the file; about so many where it was given up, being too large.
    std::uint64_t bytes = 0;
    QSize size; ///< Of its pictures, in pixels.
    std::uint64_t frames = 0;
    bool moves = true;
};
