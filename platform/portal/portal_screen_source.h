// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/portal/screen_cast_session.h"
#include "platform/screen_source.h"

#include <QDBusConnection>

class PipeWireStream;

/// The source of a Wayland session: what the desktop's portal hands out once the user has chosen a
/// monitor or a window. It knows neither the other windows nor where ours are; only a stream of a
/// window leaves ours out.
class PortalScreenSource : public ScreenSource {
    Q_OBJECT

public:
    explicit PortalScreenSource(const QDBusConnection &bus = QDBusConnection::sessionBus());
    ~PortalScreenSource() override;

    ScreenSourceCapabilities capabilities() const override;
    std::optional<Obstacle> obstacle() const override { return obstacle_; }
    SourceState state() const override { return state_; }
    QString reason() const override { return reason_; }
    void start(const Start &how) override;
    void setRate(std::uint64_t rate) override;
    void stop() override;
    std::optional<ChosenSource> chosen() const override;
    QString restoreToken() const override { return restoreToken_; }
    std::vector<WindowDescription> windows() override { return {}; }
    std::optional<ScreenPicture> latest(std::span<const std::uint32_t> numbers,
                                        const std::optional<QRect> &part) override;
    std::optional<std::chrono::steady_clock::time_point> newestPicture() const override;

private:
    void learnWhatIsOffered();
    void begin();
    void openStream(int descriptor, quint32 node);
    void end(SourceState state, const QString &reason = {});
    void letGo();
    void setState(SourceState state);

    QDBusConnection bus_;
    std::optional<ScreenCastOffer> offer_; // none until the portal has answered
    std::optional<Obstacle> obstacle_;
    SourceState state_ = SourceState::Idle;
    QString reason_;
    Start how_;
    QString restoreToken_;
    ScreenCastSession *session_ = nullptr;
    PipeWireStream *stream_ = nullptr;
};
