// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/desktop_animations.h"

#include "platform/desktop_settings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QSettings>
#include <QStandardPaths>

namespace {

constexpr int patience = 1000; // milliseconds: a portal may have to be started

/// Plasma's programs read this file, too; a user's comes before the system's.
bool plasmaForbids() {
    if (!qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(u"KDE"))
        return false;
    const QStringList files = QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation,
                                                        QStringLiteral("kdeglobals"));
    for (const QString &file : files) {
        const QVariant factor = QSettings(file, QSettings::IniFormat)
                                    .value(QStringLiteral("KDE/AnimationDurationFactor"));
        bool isNumber = false;
        const double number = factor.toString().toDouble(&isNumber);
        if (isNumber)
            return number <= 0.0;
    }
    return false;
}

/// Some portals put one variant into another.
QVariant bare(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

void DesktopAnimations::ask() {
    ++question_;
    if (desktopSetting("Gtk/EnableAnimations").value_or(1) == 0 || plasmaForbids())
        Q_EMIT answered(false);
    else
        askPortal();
}

void DesktopAnimations::askPortal() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        Q_EMIT answered(true);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    call.setArguments(
        {QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("enable-animations")});
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, patience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher, question = question_] {
                const QDBusPendingReply<QDBusVariant> reply = *watcher;
                watcher->deleteLater();
                if (question != question_)
                    return;
                const QVariant value =
                    reply.isError() ? QVariant() : bare(QVariant::fromValue(reply.value()));
                Q_EMIT answered(value.isValid() ? value.toBool() : true);
            });
}
