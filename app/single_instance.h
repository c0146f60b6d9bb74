// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QString>

#include <functional>

/// One instance per user. The first one holds a lock in the user's runtime folder and listens
/// beside it; a second one asks the first to come forward, and ends before it has touched anything.
class SingleInstance {
public:
    /// Claims the instance in `folder`, the user's own runtime folder.
    explicit SingleInstance(const QString &folder);
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    /// Whether this process is the first. Also true when the folder cannot be used at all: a
    /// program that starts is worth more than one that cannot tell.
    bool isFirst() const { return first_; }

    /// Asks the first instance to bring its window forward, and waits for its answer, a few seconds
    /// at most. False when none came: it is busy, or on its way out.
    bool askFirstToComeForward() const;

    /// Claims the instance once more: one that was killed gives it back a little later.
    void claim();

    /// In the first instance: calls `comeForward` whenever another start asks for it.
    void listen(std::function<void()> comeForward);

private:
    QString socketPath_;
    QLocalServer server_;
    int lock_ = -1;
    bool first_ = true;
};
