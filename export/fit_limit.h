// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

/// What the text of the list of the largest file size says.
struct FitLimit {
    std::optional<std::uint64_t> bytes = {}; ///< None: no limit.
    bool isWrong = false;                    ///< It is neither a number above 0 nor nothing.

    bool operator==(const FitLimit &) const = default;
};

/// The limits that the list offers, in MB (1,000,000 bytes).
inline constexpr int offeredLimits[] = {5, 10, 25};

/// A number, with the locale's decimal sign or a point, and "kB" or "MB" behind it (1,000 and
/// 1,000,000 bytes; "ko" and "Mo" in French); MB without one. An empty text is no limit.
FitLimit fitLimitOf(QStringView text);

/// That many bytes as such a text, with the unit, in the digits that the user typed: "5 MB" where
/// an amount that was measured is "5.0 MB". Number and unit do not part.
QString fitLimitText(std::uint64_t bytes);
