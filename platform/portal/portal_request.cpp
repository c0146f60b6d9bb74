// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/portal/portal_request.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString responseSignal = QStringLiteral("Response");

} // namespace

QString portal::parentWindow() {
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return {};
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto ours = std::ranges::find_if(windows, [](const QWindow *window) {
        return window->isVisible() && window->type() == Qt::Window;
    });
    return ours == windows.end() ? QString()
                                 : QStringLiteral("x11:%1").arg((*ours)->winId(), 0, 16);
}

QString PortalRequest::newToken() {
    static unsigned last = 0;
    return QStringLiteral("tovarel%1").arg(++last);
}

QString PortalRequest::handlePath(const QDBusConnection &bus, const QString &kind,
                                  const QString &token) {
    // ":1.42" becomes "1_42".
    const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("%1/%2/%3/%4").arg(QLatin1String(portal::object), kind, sender, token);
}

PortalRequest::PortalRequest(const QDBusConnection &bus, const Question &question,
                             std::function<void(const Answer &)> answered, QObject *parent)
    : QObject(parent), bus_(bus), answered_(std::move(answered)) {
    QVariantMap options = question.options;
    const QString token = newToken();
    options[QStringLiteral("handle_token")] = token;
    // Before the question, because the response may come right behind the first answer.
    listen(handlePath(bus_, QStringLiteral("request"), token));
    QDBusMessage message = QDBusMessage::createMethodCall(QLatin1String(portal::service),
                                                          QLatin1String(portal::object),
                                                          question.interface, question.method);
    message.setArguments(question.arguments + QVariantList{options});
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError())
            finish({.outcome = Outcome::Failed, .results = {}, .error = reply.error().message()});
        else if (reply.value().path() != path_)
            listen(reply.value().path()); // portals before version 0.9 choose their own
    });
}

PortalRequest::~PortalRequest() {
    if (answered_)
        bus_.send(QDBusMessage::createMethodCall(QLatin1String(portal::service), path_,
                                                 requestInterface, QStringLiteral("Close")));
}

void PortalRequest::listen(const QString &path) {
    const QString service = QLatin1String(portal::service);
    if (!path_.isEmpty())
        bus_.disconnect(service, path_, requestInterface, responseSignal, this,
                        SLOT(responded(uint, QVariantMap)));
    path_ = path;
    bus_.connect(service, path_, requestInterface, responseSignal, this,
                 SLOT(responded(uint, QVariantMap)));
}

void PortalRequest::responded(uint code, const QVariantMap &results) {
    // 0 granted, 1 cancelled by the user, 2 ended in some other way.
    const Outcome outcome = code == 0   ? Outcome::Granted
                            : code == 1 ? Outcome::Refused
                                        : Outcome::Failed;
    finish({.outcome = outcome, .results = results, .error = QString::number(code)});
}

void PortalRequest::finish(const Answer &answer) {
    if (!answered_)
        return;
    const auto answered = std::exchange(answered_, nullptr);
    deleteLater();
    answered(answer);
}
