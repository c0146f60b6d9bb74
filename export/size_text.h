// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>

/// GIF89a, 18 (Logical Screen Descriptor): width and height are 16 bits each. In pixels.
inline constexpr std::int64_t longestGIFSide = 65535;

/// What is wrong with the text of a size field. The field takes anything; whether an export starts
/// depends on the number that the text begins with, and whether it succeeds on the encoder, which
/// reads the whole text.
enum class SizeTextProblem {
    None,
    Zero,     ///< Does not begin with a number other than 0: the export will not start.
    Negative, ///< No encoder takes it.
    NotPlain, ///< Something beside the digits ("320px"): likewise.
    TooLarge, ///< More pixels a side than the GIF format can hold.
};

/// The first of these that holds; none for what both will take.
SizeTextProblem sizeTextProblem(QStringView text);

/// The side of a picture that a size field is for.
enum class PictureSide { Width, Height };

/// The sentence about it; empty for none. `longest` is the longest side that the format can hold,
/// in pixels.
QString sizeProblemText(PictureSide side, SizeTextProblem problem,
                        std::int64_t longest = longestGIFSide);
