// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a program without a window says: messages on the error output, and on a terminal a line of
/// progress beneath them, which the next one replaces.
class Terminal {
public:
    Terminal();
    /// Takes the line of progress away.
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// A message, on a line of its own.
    void say(const QString &text);
    /// How far it is; nothing where the error output is no terminal.
    void progress(const QString &text);

private:
    void clear();

    bool isTerminal_;
    QString shown_;
};
