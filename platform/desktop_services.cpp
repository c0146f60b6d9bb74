// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/desktop_services.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

namespace {

constexpr int byTheServer = -1; // how long a notification stays
constexpr quint32 noneBefore = 0;
constexpr int patience = 5000; // milliseconds: a file manager may have to be started

} // namespace

void desktop_services::showInFileManager(const QString &path) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QString address = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    call.setArguments({QStringList(address), QString()});
    const QDBusPendingCall pending = QDBusConnection::sessionBus().asyncCall(call, patience);
    auto *watcher = new QDBusPendingCallWatcher(pending, qApp);
    const auto answered = [path](QDBusPendingCallWatcher *done) {
        const QDBusPendingReply<> reply = *done;
        if (reply.isError())
            QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
        done->deleteLater();
    };
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, qApp, answered);
}

void desktop_services::notify(const QString &summary, const QString &body) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const QString id = QGuiApplication::desktopFileName();
    const QVariantMap hints{{QStringLiteral("desktop-entry"), id}};
    // The body may hold markup, which a file's name must not be taken for.
    call.setArguments({QGuiApplication::applicationDisplayName(), noneBefore, id, summary,
                       body.toHtmlEscaped(), QStringList(), hints, byTheServer});
    QDBusConnection::sessionBus().send(call);
}
