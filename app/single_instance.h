// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QString>

#include <functional>
#include <optional>

class QLocalSocket;

/// What the first instance can be wished to do.
namespace wishes {
inline constexpr QLatin1StringView comeForward("come-forward");
inline constexpr QLatin1StringView toggle("toggle"); ///< Record, or stop what is recorded.
inline constexpr QLatin1StringView pause("pause");   ///< Pause what is recorded, or go on with it.
inline constexpr QLatin1StringView stop("stop");
} // namespace wishes

/// What becomes of a wish; each is one character over the socket.
enum class WishAnswer : char {
    Done = '1',
    Refused = '0',
    NotRecording = 'n', ///< There is nothing to stop or to pause.
    Saving = 's',       ///< The last recording is still being saved.
    Asking = 'a',       ///< A dialog is to be answered first.
};

/// One instance per user. The first one holds a lock in the user's runtime folder and listens
/// beside it; a second one asks the first to come forward, and ends before it has touched anything.
///
/// What is said over the socket: a wish, which is a word and the end of the line, and one character
/// in answer. A connection that says nothing wants the first one to come forward.
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

    /// Tells whoever is the first in `folder` what is wished, without becoming it; none when nobody
    /// answers.
    static std::optional<WishAnswer> tell(const QString &folder, const QString &wish);

    /// Claims the instance once more: one that was killed gives it back a little later.
    void claim();

    /// In the first instance: calls `fulfil` whenever somebody has a wish.
    using Fulfil = std::function<WishAnswer(const QString &wish)>;
    void listen(Fulfil fulfil);

private:
    static QString socketIn(const QString &folder);
    void hear(QLocalSocket &caller);

    Fulfil fulfil_;
    QString socketPath_;
    QLocalServer server_;
    int lock_ = -1;
    bool first_ = true;
};
