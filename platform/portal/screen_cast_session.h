// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/portal/portal_request.h"
#include "platform/screen_source.h"

#include <QPointer>

/// What the desktop's portal for screen casts offers (properties of
/// org.freedesktop.portal.ScreenCast).
struct ScreenCastOffer {
    uint version = 0;
    uint types = 0;       ///< Bits: 1 monitor, 2 window, 4 virtual.
    uint cursorModes = 0; ///< Bits: 1 hidden, 2 embedded, 4 metadata.
};

/// One session of the desktop's portal for screen casts, from its dialog to the stream that it
/// hands out (xdg-desktop-portal, org.freedesktop.portal.ScreenCast, versions 1 to 6). It ends when
/// this object does.
class ScreenCastSession : public QObject {
    Q_OBJECT

public:
    ScreenCastSession(const QDBusConnection &bus, const ScreenCastOffer &offer);
    ~ScreenCastSession() override;

    /// To be called once. The pointer is shown, and windows are left out of the dialog, where the
    /// portal offers that.
    void start(const ScreenSource::Start &how);

    /// What was chosen, once it started.
    const ChosenSource &chosen() const { return chosen_; }
    /// For a later start; empty where the desktop doesn't remember.
    const QString &restoreToken() const { return restoreToken_; }

Q_SIGNALS:
    /// A stream can be had: its node behind `descriptor`, a PipeWire connection that belongs to the
    /// receiver.
    void started(int descriptor, quint32 node);
    void refused();
    /// `words` are the desktop's.
    void failed(const QString &words);
    /// The desktop has ended it.
    void closed();

private:
    Q_SLOT void sessionClosed();
    void ask(const QString &method, const QVariantList &arguments, const QVariantMap &options,
             void (ScreenCastSession::*next)(const QVariantMap &results));
    void created(const QVariantMap &results);
    void selected(const QVariantMap &results);
    void chose(const QVariantMap &results);
    void openRemote(quint32 node);
    QVariantMap sourceOptions() const;

    QDBusConnection bus_;
    ScreenCastOffer offer_;
    ScreenSource::Start how_;
    QString session_; // its path
    QString restoreToken_;
    ChosenSource chosen_;
    QPointer<PortalRequest> request_;
};
