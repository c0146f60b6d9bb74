// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>

/// WebP container, ANIM chunk, and GIF: the loop count has 16 bits.
inline constexpr std::int64_t mostLoops = 65535;

/// What is wrong with the text of the loop field. The field takes anything; the export reads the
/// number that the text begins with, and the encoder judges that.
enum class LoopsTextProblem {
    None,
    NotNumber, ///< Does not begin with a number: it counts as 0 = loop forever.
    Negative,  ///< The encoder refuses it.
    TooLarge,  ///< More than the WebP format can hold: the encoder refuses it.
};

/// How often a player of a GIF begins again, 0 for forever, as GIFs have it (the application
/// extension NETSCAPE2.0); none for a GIF that plays once. The text says how often it is played.
std::optional<std::uint16_t> repeatsOf(QStringView text);

/// The first of these that holds. An empty field means 0, as does what it shows at first.
LoopsTextProblem loopsTextProblem(QStringView text);
