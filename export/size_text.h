// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

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

/// The message about it, to follow the field's name; empty for none.
QString sizeProblemText(SizeTextProblem problem);
