// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/title_text.h"

namespace {

constexpr QChar firstSign = u'\u2000'; // above the letters of Europe: signs, then East Asia

} // namespace

QString titleText(const QString &text) {
    return !text.isEmpty() && text.front() >= firstSign ? QChar::Nbsp + text : text;
}
