// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/portal/screen_cast_session.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>

#include <fcntl.h>

#include <algorithm>

namespace {

const QString screenCast = QStringLiteral("org.freedesktop.portal.ScreenCast");
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");

constexpr uint monitorType = 1;
constexpr uint windowType = 2;
constexpr uint hiddenCursor = 1;
constexpr uint embeddedCursor = 2;
constexpr uint versionWithCursor = 2;
constexpr uint versionWithTokens = 4;
constexpr uint untilRevoked = 2; // persist_mode

struct Stream {
    quint32 node = 0;
    QVariantMap properties;
};

/// What stands behind "streams"; of another shape than the portal documents: none.
std::optional<Stream> lastStream(const QVariant &value) {
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto list = value.value<QDBusArgument>();
    if (list.currentSignature() != QLatin1String("a(ua{sv})"))
        return {};
    std::optional<Stream> last;
    list.beginArray();
    while (!list.atEnd()) {
        Stream stream;
        list.beginStructure();
        list >> stream.node >> stream.properties;
        list.endStructure();
        // One was asked for. Plasma may give several, and the last is what was chosen last.
        last = stream;
    }
    list.endArray();
    return last;
}

std::optional<QPoint> pairIn(const QVariantMap &properties, const QString &name) {
    const QVariant value = properties.value(name);
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto pair = value.value<QDBusArgument>();
    if (pair.currentSignature() != QLatin1String("(ii)"))
        return {};
    int x = 0, y = 0;
    pair.beginStructure();
    pair >> x >> y;
    pair.endStructure();
    return QPoint(x, y);
}

ChosenSource described(const QVariantMap &properties) {
    ChosenSource chosen;
    const uint type = properties.value(QStringLiteral("source_type")).toUInt();
    if (type == monitorType)
        chosen.kind = ChosenSource::Kind::Monitor;
    else if (type == windowType)
        chosen.kind = ChosenSource::Kind::Window;
    if (const auto size = pairIn(properties, QStringLiteral("size"));
        size && size->x() > 0 && size->y() > 0)
        chosen.place = QRect(pairIn(properties, QStringLiteral("position")).value_or(QPoint()),
                             QSize(size->x(), size->y()));
    return chosen;
}

} // namespace

ScreenCastSession::ScreenCastSession(const QDBusConnection &bus, const ScreenCastOffer &offer)
    : bus_(bus), offer_(offer) {
    const auto *watcher = new QDBusServiceWatcher(
        QLatin1String(portal::service), bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { Q_EMIT failed(QStringLiteral("xdg-desktop-portal")); });
}

ScreenCastSession::~ScreenCastSession() {
    delete request_;
    if (!session_.isEmpty())
        bus_.send(QDBusMessage::createMethodCall(QLatin1String(portal::service), session_,
                                                 sessionInterface, QStringLiteral("Close")));
}

void ScreenCastSession::start(const ScreenSource::Start &how) {
    how_ = how;
    const QString token = PortalRequest::newToken();
    // Known before it exists, so that nothing that happens to it is missed.
    session_ = PortalRequest::handlePath(bus_, QStringLiteral("session"), token);
    bus_.connect(QLatin1String(portal::service), session_, sessionInterface,
                 QStringLiteral("Closed"), this, SLOT(sessionClosed()));
    ask(QStringLiteral("CreateSession"), {}, {{QStringLiteral("session_handle_token"), token}},
        &ScreenCastSession::created);
}

void ScreenCastSession::ask(const QString &method, const QVariantList &arguments,
                            const QVariantMap &options,
                            void (ScreenCastSession::*next)(const QVariantMap &results)) {
    const auto answered = [this, method, next](const PortalRequest::Answer &answer) {
        switch (answer.outcome) {
        case PortalRequest::Outcome::Granted:
            (this->*next)(answer.results);
            break;
        case PortalRequest::Outcome::Refused:
            Q_EMIT refused();
            break;
        case PortalRequest::Outcome::Failed:
            Q_EMIT failed(QStringLiteral("%1: %2").arg(method, answer.error));
            break;
        }
    };
    request_ = new PortalRequest(
        bus_,
        {.interface = screenCast, .method = method, .arguments = arguments, .options = options},
        answered, this);
}

void ScreenCastSession::created(const QVariantMap &) {
    ask(QStringLiteral("SelectSources"), {QVariant::fromValue(QDBusObjectPath(session_))},
        sourceOptions(), &ScreenCastSession::selected);
}

QVariantMap ScreenCastSession::sourceOptions() const {
    // A type that is not offered, or such a cursor mode, ends the session.
    const uint wanted = how_.onlyMonitors ? monitorType : monitorType | windowType;
    const uint types = wanted & offer_.types;
    QVariantMap options{{QStringLiteral("types"), types ? types : monitorType},
                        {QStringLiteral("multiple"), false}};
    const uint cursor = how_.pointer ? embeddedCursor : hiddenCursor;
    if (offer_.version >= versionWithCursor && (offer_.cursorModes & cursor))
        options[QStringLiteral("cursor_mode")] = cursor;
    if (offer_.version >= versionWithTokens) {
        options[QStringLiteral("persist_mode")] = untilRevoked;
        if (!how_.restoreToken.isEmpty())
            options[QStringLiteral("restore_token")] = how_.restoreToken;
    }
    return options;
}

void ScreenCastSession::selected(const QVariantMap &) {
    ask(QStringLiteral("Start"),
        {QVariant::fromValue(QDBusObjectPath(session_)), portal::parentWindow()}, {},
        &ScreenCastSession::chose);
}

void ScreenCastSession::chose(const QVariantMap &results) {
    restoreToken_ = results.value(QStringLiteral("restore_token")).toString();
    const auto stream = lastStream(results.value(QStringLiteral("streams")));
    if (!stream)
        return Q_EMIT failed(QStringLiteral("Start: streams?"));
    chosen_ = described(stream->properties);
    openRemote(stream->node);
}

void ScreenCastSession::openRemote(quint32 node) {
    QDBusMessage message = QDBusMessage::createMethodCall(QLatin1String(portal::service),
                                                          QLatin1String(portal::object), screenCast,
                                                          QStringLiteral("OpenPipeWireRemote"));
    message.setArguments({QVariant::fromValue(QDBusObjectPath(session_)), QVariantMap()});
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, node] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
        if (reply.isError())
            return Q_EMIT failed(
                QStringLiteral("OpenPipeWireRemote: %1").arg(reply.error().message()));
        // The reply closes its own.
        const int descriptor = fcntl(reply.value().fileDescriptor(), F_DUPFD_CLOEXEC, 3);
        if (descriptor < 0)
            return Q_EMIT failed(QStringLiteral("OpenPipeWireRemote"));
        Q_EMIT started(descriptor, node);
    });
}

void ScreenCastSession::sessionClosed() {
    // There is none any more to be closed.
    session_.clear();
    Q_EMIT closed();
}
