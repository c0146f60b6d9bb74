// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include <QFile>
#include <QLocalSocket>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <utility>

namespace {

constexpr int longestWait = 2000; // milliseconds

} // namespace

SingleInstance::SingleInstance(const QString &folder)
    : socketPath_(folder + QStringLiteral("/tovarel.socket")) {
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
    // Connecting is the whole message: there is only one thing to ask for.
    QLocalSocket socket;
    socket.connectToServer(socketPath_);
    if (!socket.waitForConnected(longestWait))
        return false;
    // One that ends meanwhile hangs up, too, but has not said anything.
    return socket.bytesAvailable() > 0 || socket.waitForReadyRead(longestWait);
}

void SingleInstance::listen(std::function<void()> comeForward) {
    if (lock_ < 0)
        return;
    // What is there belongs to an instance that has ended: this one holds the lock.
    QLocalServer::removeServer(socketPath_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_,
                     [this, comeForward = std::move(comeForward)] {
                         const std::unique_ptr<QLocalSocket> caller(
                             server_.nextPendingConnection());
                         comeForward();
                         caller->write("1"); // That it was done is all there is to say.
                         caller->flush();
                     });
    if (!server_.listen(socketPath_))
        qWarning("a second start cannot reach this one: %s", qUtf8Printable(server_.errorString()));
}
