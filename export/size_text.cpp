// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/size_text.h"

#include "platform/text_number.h"

#include <algorithm>

namespace {

/// GIF89a, 18 (Logical Screen Descriptor): width and height are 16 bits each.
constexpr std::int64_t longestSide = 65535; // pixels

bool isPlainNumber(QStringView text) {
    // The encoder skips blanks in front and takes a plus sign, like the reading above it.
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    if (text.startsWith(u'+'))
        text = text.sliced(1);
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

SizeTextProblem sizeTextProblem(QStringView text) {
    const std::int64_t value = integerValue(text);
    if (value == 0)
        return SizeTextProblem::Zero;
    if (value < 0)
        return SizeTextProblem::Negative;
    if (!isPlainNumber(text))
        return SizeTextProblem::NotPlain;
    return value > longestSide ? SizeTextProblem::TooLarge : SizeTextProblem::None;
}

QString sizeProblemText(SizeTextProblem problem) {
    switch (problem) {
    case SizeTextProblem::None:
        break;
    case SizeTextProblem::Zero:
        return qtTrId("IDD_SIZE_ZERO");
    case SizeTextProblem::Negative:
        return qtTrId("IDD_SIZE_NEGATIVE");
    case SizeTextProblem::NotPlain:
        return qtTrId("IDD_SIZE_NOT_PLAIN");
    case SizeTextProblem::TooLarge:
        return qtTrId("IDD_SIZE_TOO_LARGE");
    }
    return {};
}
