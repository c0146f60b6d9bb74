// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/portal/portal_screen_source.h"

#include "platform/portal/pipewire_stream.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <unistd.h>

PortalScreenSource::PortalScreenSource(const QDBusConnection &bus) : bus_(bus) {
    if (bus_.isConnected())
        learnWhatIsOffered();
    else
        obstacle_ = Obstacle::NoPortal;
}

PortalScreenSource::~PortalScreenSource() {
    delete stream_;
    delete session_;
}

ScreenSourceCapabilities PortalScreenSource::capabilities() const {
    const auto what = chosen();
    return {.asksUser = true,
            .leavesOwnOut = what && what->kind == ChosenSource::Kind::Window,
            .pointer = HandAccess::Granted,
            .clicks = HandAccess::NotOffered,
            .keys = HandAccess::NotOffered};
}

std::optional<ChosenSource> PortalScreenSource::chosen() const {
    const bool isKnown = state_ == SourceState::Waiting || state_ == SourceState::Live;
    return isKnown && session_ ? std::optional(session_->chosen()) : std::nullopt;
}

void PortalScreenSource::learnWhatIsOffered() {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QLatin1String(portal::service), QLatin1String(portal::object),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"));
    message.setArguments({QStringLiteral("org.freedesktop.portal.ScreenCast")});
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QVariantMap> reply = *watcher;
        const QVariantMap offered = reply.isError() ? QVariantMap() : reply.value();
        const auto number = [&](const char *name) {
            return offered.value(QLatin1String(name)).toUInt();
        };
        const ScreenCastOffer offer{.version = number("version"),
                                    .types = number("AvailableSourceTypes"),
                                    .cursorModes = number("AvailableCursorModes")};
        // A portal whose desktop has no screen cast answers with nothing.
        if (offer.version == 0 || offer.types == 0) {
            obstacle_ = Obstacle::NoPortal;
            end(SourceState::Ended, reply.isError() ? reply.error().message() : QString());
            return;
        }
        offer_ = offer;
        if (state_ == SourceState::Asking)
            begin();
    });
}

void PortalScreenSource::start(const Start &how) {
    letGo();
    how_ = how;
    if (obstacle_)
        return end(SourceState::Ended);
    reason_.clear();
    setState(SourceState::Asking);
    if (offer_)
        begin();
}

void PortalScreenSource::begin() {
    session_ = new ScreenCastSession(bus_, *offer_);
    connect(session_, &ScreenCastSession::started, this, &PortalScreenSource::openStream);
    connect(session_, &ScreenCastSession::refused, this, [this] { end(SourceState::Refused); });
    connect(session_, &ScreenCastSession::closed, this, [this] { end(SourceState::Ended); });
    connect(session_, &ScreenCastSession::failed, this,
            [this](const QString &words) { end(SourceState::Ended, words); });
    session_->start(how_);
}

void PortalScreenSource::openStream(int descriptor, quint32 node) {
    restoreToken_ = session_->restoreToken();
    const bool isWindow = session_->chosen().kind == ChosenSource::Kind::Window;
    if (isWindow && how_.onlyMonitors && !how_.restoreToken.isEmpty()) {
        // It was chosen an earlier time, when windows were offered.
        close(descriptor);
        letGo();
        how_.restoreToken.clear();
        return begin();
    }
    stream_ = new PipeWireStream(descriptor, node, how_.rate);
    connect(stream_, &PipeWireStream::began, this, [this] { setState(SourceState::Live); });
    connect(stream_, &PipeWireStream::ended, this,
            [this](const QString &words) { end(SourceState::Ended, words); });
    setState(SourceState::Waiting);
}

void PortalScreenSource::setRate(std::uint64_t rate) {
    if (rate == how_.rate)
        return;
    how_.rate = rate;
    if (stream_)
        stream_->setRate(rate);
}

void PortalScreenSource::stop() {
    letGo();
    reason_.clear();
    if (state_ != SourceState::Idle)
        setState(SourceState::Idle);
}

void PortalScreenSource::end(SourceState state, const QString &reason) {
    letGo();
    reason_ = reason;
    setState(state);
}

// One of them may be on the stack.
void PortalScreenSource::letGo() {
    for (QObject *object : {static_cast<QObject *>(stream_), static_cast<QObject *>(session_)})
        if (object) {
            object->disconnect(this);
            object->deleteLater();
        }
    stream_ = nullptr;
    session_ = nullptr;
}

void PortalScreenSource::setState(SourceState state) {
    state_ = state;
    Q_EMIT stateChanged();
}

std::optional<ScreenPicture> PortalScreenSource::latest(std::span<const std::uint32_t>,
                                                        const std::optional<QRect> &) {
    if (state_ != SourceState::Live || !stream_)
        return {};
    auto image = stream_->take();
    if (!image)
        return {};
    ScreenPicture picture{.image = std::move(*image), .pixelsPerPoint = 1.0};
    // What is told of a window's size may be its shadow's or of another scale.
    const ChosenSource &what = session_->chosen();
    if (what.kind == ChosenSource::Kind::Monitor && what.place)
        picture.pixelsPerPoint = static_cast<double>(picture.image.width()) / what.place->width();
    return picture;
}

std::optional<std::chrono::steady_clock::time_point> PortalScreenSource::newestPicture() const {
    return stream_ ? stream_->newest() : std::nullopt;
}
