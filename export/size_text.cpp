// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/size_text.h"

#include "platform/text_number.h"
#include "shell/number_text.h"

#include <algorithm>

namespace {

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
    return value > longestGIFSide ? SizeTextProblem::TooLarge : SizeTextProblem::None;
}

QString sizeProblemText(PictureSide side, SizeTextProblem problem, std::int64_t longest) {
    const bool isWidth = side == PictureSide::Width;
    switch (problem) {
    case SizeTextProblem::None:
        break;
    case SizeTextProblem::Zero:
        return isWidth ? qtTrId("IDD_WIDTH_ZERO") : qtTrId("IDD_HEIGHT_ZERO");
    case SizeTextProblem::Negative:
        return isWidth ? qtTrId("IDD_WIDTH_NEGATIVE") : qtTrId("IDD_HEIGHT_NEGATIVE");
    case SizeTextProblem::NotPlain:
        return isWidth ? qtTrId("IDD_WIDTH_NOT_PLAIN") : qtTrId("IDD_HEIGHT_NOT_PLAIN");
    case SizeTextProblem::TooLarge:
        return (isWidth ? qtTrId("IDD_WIDTH_TOO_LARGE") : qtTrId("IDD_HEIGHT_TOO_LARGE"))
            .arg(number_text::count(static_cast<std::uint64_t>(longest)));
    }
    return {};
}
