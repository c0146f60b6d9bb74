// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/portal/portal_shortcuts.h"

#include "platform/key_names.h"
#include "platform/portal/portal_request.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QGuiApplication>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

const QString globalShortcuts = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString busName = QStringLiteral("tovarel-shortcuts");

struct Shortcut {
    QString id;
    QVariantMap options;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Shortcut &shortcut) {
    argument.beginStructure();
    argument << shortcut.id << shortcut.options;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Shortcut &shortcut) {
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.options;
    argument.endStructure();
    return argument; // NOLINT(bugprone-return-const-ref-from-parameter): the toolkit's form
}

/// GNOME 48 describes what it granted in the form of its settings, "Press <Control><Super>r": that
/// becomes "Ctrl+Super+R". Other descriptions are the desktop's own words and stay.
QString readable(const QString &trigger) {
    static const QRegularExpression accelerator(QStringLiteral("((?:<\\w+>)+)(\\w+)$"));
    const QRegularExpressionMatch match = accelerator.match(trigger);
    if (!match.hasMatch())
        return trigger;
    QStringList keys = match.captured(1).mid(1).chopped(1).split(QStringLiteral("><"));
    for (QString &modifier : keys)
        if (modifier == QLatin1String("Control") || modifier == QLatin1String("Primary"))
            modifier = controlKeyName();
    const QString key = match.captured(2);
    keys << (key.size() == 1 ? key.toUpper() : key);
    return keys.join(QLatin1Char('+'));
}

} // namespace

PortalShortcuts::PortalShortcuts(std::vector<Key> keys)
    : keys_(std::move(keys)), granted_(keys_.size()) {}

PortalShortcuts::~PortalShortcuts() {
    if (!bus_)
        return;
    delete request_;
    bus_.reset();
    // With its caller the session ends.
    QDBusConnection::disconnectFromBus(busName);
}

void PortalShortcuts::bind() {
    if (bus_)
        return;
    qDBusRegisterMetaType<Shortcut>();
    qDBusRegisterMetaType<QList<Shortcut>>();
    // Of its own: who calls is to be told before anything else is asked.
    bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, busName);
    if (!bus_->isConnected())
        return;
    nameUs();
    const QString token = PortalRequest::newToken();
    session_ = PortalRequest::handlePath(*bus_, QStringLiteral("session"), token);
    request_ = new PortalRequest(
        *bus_,
        {.interface = globalShortcuts,
         .method = QStringLiteral("CreateSession"),
         .arguments = {},
         .options = {{QStringLiteral("session_handle_token"), token}}},
        [this](const PortalRequest::Answer &answer) {
            if (answer.outcome == PortalRequest::Outcome::Granted)
                created();
        },
        this);
}

/// Portals from version 1.20 on grant keys only to those they know by name, and find out for
/// themselves only of sandboxed programs (org.freedesktop.host.portal.Registry). Older ones have no
/// such call, and need none.
void PortalShortcuts::nameUs() {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QLatin1String(portal::service), QLatin1String(portal::object),
        QStringLiteral("org.freedesktop.host.portal.Registry"), QStringLiteral("Register"));
    message.setArguments({QGuiApplication::desktopFileName(), QVariantMap()});
    bus_->send(message);
}

void PortalShortcuts::created() {
    const QString service = QLatin1String(portal::service);
    const QString object = QLatin1String(portal::object);
    bus_->connect(service, object, globalShortcuts, QStringLiteral("Activated"), this,
                  SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    bus_->connect(service, object, globalShortcuts, QStringLiteral("ShortcutsChanged"), this,
                  SLOT(shortcutsChanged(QDBusMessage)));
    QList<Shortcut> wanted;
    for (const Key &key : keys_)
        // The form of the trigger is that of the shortcuts specification of freedesktop.org.
        wanted.append({.id = key.id,
                       .options = {{QStringLiteral("description"), key.description},
                                   {QStringLiteral("preferred_trigger"),
                                    QStringLiteral("LOGO+CTRL+%1").arg(QLatin1Char(key.letter))}}});
    request_ = new PortalRequest(
        *bus_,
        {.interface = globalShortcuts,
         .method = QStringLiteral("BindShortcuts"),
         .arguments = {QVariant::fromValue(QDBusObjectPath(session_)), QVariant::fromValue(wanted),
                       portal::parentWindow()},
         .options = {}},
        // Some desktops say that it failed when it did not: what counts is what there is.
        [this](const PortalRequest::Answer &) { list(); }, this);
}

void PortalShortcuts::list() {
    request_ = new PortalRequest(
        *bus_,
        {.interface = globalShortcuts,
         .method = QStringLiteral("ListShortcuts"),
         .arguments = {QVariant::fromValue(QDBusObjectPath(session_))},
         .options = {}},
        [this](const PortalRequest::Answer &answer) {
            if (answer.outcome == PortalRequest::Outcome::Granted)
                take(answer.results);
        },
        this);
}

void PortalShortcuts::take(const QVariantMap &results) {
    const QVariant value = results.value(QStringLiteral("shortcuts"));
    if (!value.canConvert<QDBusArgument>())
        return;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("a(sa{sv})"))
        return;
    QList<Shortcut> shortcuts;
    argument >> shortcuts;
    std::vector<std::optional<QString>> granted(keys_.size());
    for (const Shortcut &shortcut : shortcuts) {
        const auto key = std::ranges::find(keys_, shortcut.id, &Key::id);
        if (key != keys_.end())
            granted[static_cast<std::size_t>(key - keys_.begin())] =
                readable(shortcut.options.value(QStringLiteral("trigger_description")).toString());
    }
    if (granted == granted_)
        return;
    granted_ = std::move(granted);
    Q_EMIT grantedChanged();
}

void PortalShortcuts::shortcutsChanged(const QDBusMessage &) {
    if (!request_)
        list();
}

void PortalShortcuts::activated(const QDBusObjectPath &session, const QString &id, qulonglong,
                                const QVariantMap &) {
    const auto key = std::ranges::find(keys_, id, &Key::id);
    if (session.path() == session_ && key != keys_.end())
        Q_EMIT pressed(static_cast<std::size_t>(key - keys_.begin()));
}
