// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/loops_text.h"

#include "platform/text_number.h"

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
