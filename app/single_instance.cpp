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

constexpr int patience = 2000;       // milliseconds
constexpr qint64 longestToken = 256; // bytes; a start-up id is far shorter

} // namespace

SingleInstance::SingleInstance(const QString &folder)
    : socketPath_(folder + QStringLiteral("/tovarel.socket")) {
    // The kernel gives a lock back when its process ends, however it ends; a file with a process
    // number in it would have to be doubted.
    const QByteArray lockPath = QFile::encodeName(folder + QStringLiteral("/tovarel.lock"));
    lock_ = open(lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (lock_ >= 0 && flock(lock_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        first_ = false;
}

SingleInstance::~SingleInstance() {
    if (lock_ >= 0)
        close(lock_);
}

void SingleInstance::askFirstToComeForward() const {
    QLocalSocket socket;
    socket.connectToServer(socketPath_);
    if (!socket.waitForConnected(patience))
        return;
    socket.write(qgetenv("DESKTOP_STARTUP_ID").left(longestToken) + '\n');
    socket.waitForBytesWritten(patience);
    // The first instance hangs up once it has read.
    if (socket.state() != QLocalSocket::UnconnectedState)
        socket.waitForDisconnected(patience);
}

void SingleInstance::listen(std::function<void(const QString &)> comeForward) {
    if (lock_ < 0)
        return;
    // What lies there belongs to an instance that has ended: this one holds the lock.
    QLocalServer::removeServer(socketPath_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_,
                     [this, comeForward = std::move(comeForward)] {
                         QLocalSocket *caller = server_.nextPendingConnection();
                         QObject::connect(caller, &QLocalSocket::disconnected, caller,
                                          &QObject::deleteLater);
                         const auto answer = [caller, comeForward] {
                             if (!caller->canReadLine() && caller->bytesAvailable() < longestToken)
                                 return;
                             const QByteArray token = caller->readLine(longestToken).trimmed();
                             caller->disconnectFromServer();
                             comeForward(QString::fromUtf8(token));
                         };
                         QObject::connect(caller, &QLocalSocket::readyRead, caller, answer);
                         answer();
                     });
    server_.listen(socketPath_);
}
