// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include <QFile>
#include <QLocalSocket>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <utility>

namespace {

constexpr int longestWait = 2000;                 // milliseconds
constexpr std::chrono::milliseconds silence{300}; // after which a caller has nothing to say
constexpr qint64 longestWish = 64;                // bytes, its end included

/// Says a wish and waits for the answer to it.
std::optional<char> answerTo(const QString &socketPath, const QString &wish) {
    QLocalSocket socket;
    socket.connectToServer(socketPath);
    if (!socket.waitForConnected(longestWait))
        return std::nullopt;
    socket.write(wish.toUtf8() + '\n');
    socket.flush();
    // One that ends meanwhile hangs up, too, but has not said anything.
    char answer = 0;
    if (socket.bytesAvailable() == 0 && !socket.waitForReadyRead(longestWait))
        return std::nullopt;
    return socket.getChar(&answer) ? std::optional(answer) : std::nullopt;
}

} // namespace

QString SingleInstance::socketIn(const QString &folder) {
    return folder + QStringLiteral("/tovarel.socket");
}

SingleInstance::SingleInstance(const QString &folder) : socketPath_(socketIn(folder)) {
    // The kernel gives a lock back when its process ends, however it ends; a file with a process
    // number in it would have to be doubted.
    const QByteArray lockPath = QFile::encodeName(folder + QStringLiteral("/tovarel.lock"));
    lock_ = open(lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    claim();
}

void SingleInstance::claim() {
    first_ = lock_ < 0 || flock(lock_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

SingleInstance::~SingleInstance() {
    if (lock_ >= 0)
        close(lock_);
}

bool SingleInstance::askFirstToComeForward() const {
    return answerTo(socketPath_, wishes::comeForward).has_value();
}

std::optional<WishAnswer> SingleInstance::tell(const QString &folder, const QString &wish) {
    const std::optional<char> answer = answerTo(socketIn(folder), wish);
    return answer ? std::optional(static_cast<WishAnswer>(*answer)) : std::nullopt;
}

void SingleInstance::listen(Fulfil fulfil) {
    if (lock_ < 0)
        return;
    fulfil_ = std::move(fulfil);
    // What is there belongs to an instance that has ended: this one holds the lock.
    QLocalServer::removeServer(socketPath_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket *caller = server_.nextPendingConnection())
            hear(*caller);
    });
    if (!server_.listen(socketPath_))
        qWarning("a second start cannot reach this one: %s", qUtf8Printable(server_.errorString()));
}

void SingleInstance::hear(QLocalSocket &caller) {
    // The socket is the server's; it goes when all is said.
    auto *patience = new QTimer(&caller);
    patience->setSingleShot(true);
    const auto answer = [this, &caller, patience](const QString &wish) {
        patience->stop();
        caller.disconnect();
        QObject::connect(&caller, &QLocalSocket::disconnected, &caller, &QObject::deleteLater);
        caller.putChar(static_cast<char>(fulfil_(wish)));
        caller.flush();
        caller.disconnectFromServer();
        if (caller.state() == QLocalSocket::UnconnectedState)
            caller.deleteLater();
    };
    const auto listen = [&caller, answer] {
        if (caller.canReadLine())
            answer(QString::fromUtf8(caller.readLine(longestWish)).trimmed());
        else if (caller.bytesAvailable() >= longestWish)
            answer({}); // nobody's wish
    };
    const auto silent = [&caller, answer] {
        answer(caller.bytesAvailable() == 0 ? QString(wishes::comeForward) : QString());
    };
    QObject::connect(&caller, &QLocalSocket::readyRead, &caller, listen);
    QObject::connect(&caller, &QLocalSocket::disconnected, &caller, silent);
    QObject::connect(patience, &QTimer::timeout, &caller, silent);
    patience->start(silence);
    // It may have said it before anybody listened.
    listen();
}
