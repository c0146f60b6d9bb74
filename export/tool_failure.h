// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

/// How a tool's run ended.
struct ToolExit {
    enum class Kind {
        Missing,    ///< There is no such tool: its path is empty.
        NotStarted, ///< The system refused; `reason` is its sentence.
        Crashed,    ///< Ended by the signal `code`.
        Ended,      ///< With the exit status `code`.
    };
    Kind kind = Kind::Missing;
    int code = 0;
    QString reason = {};
    /// Last meaningful lines of what it wrote to its error output, for the user.
    QString lastLines = {};

    bool succeeded() const { return kind == Kind::Ended && code == 0; }
};

/// The end of a tool's error output as a person can use it: a few lines, none of them empty, cut
/// short or a progress line; bytes that are not UTF-8 are replaced.
QString lastMeaningfulLines(QByteArrayView errorOutput);

/// What the user is told about a run that did not succeed: the tool's name, how it ended, what it
/// said.
QString toolFailureText(const QString &toolName, const ToolExit &exit);

/// What the user is told when a tool ended well and its result is missing or empty.
QString noResultText(const QString &toolName, const QString &file, const ToolExit &exit);
