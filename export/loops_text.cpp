// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/loops_text.h"

#include "platform/text_number.h"

#include <algorithm>

namespace {

/// The reading of numbers answers 0 to a text without one, too.
bool beginsWithZero(QStringView text) {
    if (text.startsWith(u'+') || text.startsWith(u'-'))
        text = text.sliced(1);
    return text.startsWith(u'0');
}

} // namespace

LoopsTextProblem loopsTextProblem(QStringView text) {
    const QStringView typed = text.trimmed();
    const std::int64_t loops = integerValue(typed);
    if (loops == 0 && !typed.isEmpty() && !beginsWithZero(typed))
        return LoopsTextProblem::NotNumber;
    if (loops < 0)
        return LoopsTextProblem::Negative;
    return loops > mostLoops ? LoopsTextProblem::TooLarge : LoopsTextProblem::None;
}

std::optional<std::uint16_t> repeatsOf(QStringView text) {
    const std::int64_t plays = std::clamp<std::int64_t>(integerValue(text.trimmed()), 0, mostLoops);
    if (plays == 1)
        return std::nullopt;
    return static_cast<std::uint16_t>(plays == 0 ? 0 : plays - 1);
}
