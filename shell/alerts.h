// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/question.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <utility>

class ShellFields;

/// What an alert tells of; its message text and its icon follow from it.
enum class AlertKind { Error, Success };

/// Alerts and questions over the main window. One of them for the program; not for what the status
/// line can say.
class Alerts : public QObject {
    Q_OBJECT

public:
    /// `shell` is borrowed: it knows the main window and the program's name.
    explicit Alerts(const ShellFields &shell) : shell_(shell) {}

    /// Where there is no window: alerts go to `teller`, and nobody is shown any.
    void setTeller(std::function<void(AlertKind, const QString &informativeText)> teller) {
        teller_ = std::move(teller);
    }

    /// An application-modal alert with one button "Close"; returns when it is dismissed. `detail`
    /// is a text of its own beneath, for a path that somebody may want to copy.
    void run(AlertKind kind, const QString &informativeText, const QString &detail = {});

    /// Asks and returns at once; `answered` is called from the event loop when the dialog has gone.
    /// Escape means cancel where that is offered, and accept otherwise. Must not be called while
    /// `isAsking`.
    void ask(const Question &question, std::function<void(Answer)> answered);
    bool isAsking() const { return !question_.isNull(); }

private:
    const ShellFields &shell_;
    std::function<void(AlertKind, const QString &)> teller_;
    QPointer<QMessageBox> question_; // while it waits for its answer
};
