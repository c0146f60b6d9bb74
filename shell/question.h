// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a question to the user says and what its buttons are called; see `Alerts::ask`.
struct Question {
    QString message;
    QString detail;
    QString accept;  ///< The button that loses nothing; Return presses it.
    QString destroy; ///< The button that loses something; empty where nothing can be lost.
    QString cancel;  ///< Goes back to where the user was; empty where there is no such way.
};

enum class Answer { Accept, Destroy, Cancel };
