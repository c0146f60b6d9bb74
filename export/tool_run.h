// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// How a tool's run ended.
struct ToolExit {
    enum class Kind {
        Missing,    ///< There is no such tool: its path is empty.
        NotStarted, ///< The system refused; `reason` is its sentence.
        Crashed,    ///< Ended by the signal `code`.
        Ended,      ///< With the exit status `code`.
        Cancelled,  ///< Not started: the user has cancelled the export.
    };
    Kind kind = Kind::Missing;
    int code = 0;
    QString reason = {};
    /// Last meaningful lines of what it wrote to its error output, for the user.
    QString lastLines = {};

    bool succeeded() const { return kind == Kind::Ended && code == 0; }
};

/// A tool's run of which all that it wrote is of interest.
struct ToolRun {
    /// All that it wrote to its output and its error output; empty when that is not UTF-8.
    QString text;
    ToolExit exit;
};
