// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>

#include <cstddef>
#include <optional>
#include <vector>

class PortalRequest;

/// Keys that reach this program whatever window has the focus, where the desktop's portal hands
/// them out (xdg-desktop-portal, org.freedesktop.portal.GlobalShortcuts); for sessions whose window
/// server doesn't, see `GlobalShortcuts`. The desktop, or its user, decides which they are. Where
/// there is no such portal nothing is granted. They are given back when this object ends.
class PortalShortcuts : public QObject {
    Q_OBJECT

public:
    struct Key {
        QString id;          ///< The portal's and our name for it, the same at every start.
        QString description; ///< In the user's words.
        char letter = 0;     ///< Super, Ctrl and this one are proposed; lower case.
    };

    explicit PortalShortcuts(std::vector<Key> keys);
    ~PortalShortcuts() override;

    /// Asks for them; not again if they were asked for. The desktop may show a dialog. Returns at
    /// once.
    void bind();

    /// What to press, in the desktop's words, by the place of the key; none for one that is not
    /// granted.
    const std::vector<std::optional<QString>> &granted() const { return granted_; }

Q_SIGNALS:
    /// The desktop has answered, or its user has changed something.
    void grantedChanged();
    void pressed(std::size_t place);

private:
    Q_SLOT void activated(const QDBusObjectPath &session, const QString &id, qulonglong time,
                          const QVariantMap &options);
    Q_SLOT void shortcutsChanged(const QDBusMessage &message);
    void nameUs();
    void created();
    void list();
    void take(const QVariantMap &results);

    const std::vector<Key> keys_;
    std::vector<std::optional<QString>> granted_;
    std::optional<QDBusConnection> bus_; // none before they were asked for
    QString session_;                    // its path
    QPointer<PortalRequest> request_;
};
