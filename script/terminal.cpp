// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "script/terminal.h"

#include <cstdio>
#include <unistd.h>

Terminal::Terminal() : isTerminal_(isatty(STDERR_FILENO) == 1 && qgetenv("TERM") != "dumb") {}

Terminal::~Terminal() { clear(); }

void Terminal::clear() {
    if (shown_.isEmpty())
        return;
    shown_.clear();
    // ECMA-48, EL: erases the line from the first column on.
    std::fputs("\r\033[K", stderr);
}

void Terminal::say(const QString &text) {
    clear();
    std::fputs(qPrintable(QStringLiteral("tovarel: ") + text + QLatin1Char('\n')), stderr);
}

void Terminal::progress(const QString &text) {
    if (!isTerminal_ || text == shown_)
        return;
    clear();
    shown_ = text;
    std::fputs(qPrintable(text), stderr);
    std::fflush(stderr);
}
