// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

/// One question to the desktop's portal. A method of it answers twice: at once with the path of a
/// Request, and with a Response on that path when the user has answered, which may take as long as
/// people read (xdg-desktop-portal, org.freedesktop.portal.Request). Never waits.
class PortalRequest : public QObject {
    Q_OBJECT

public:
    enum class Outcome {
        Granted,
        Refused, ///< The user has said no.
        Failed,  ///< There is no such portal, or it could not do it.
    };

    struct Answer {
        Outcome outcome = Outcome::Failed;
        QVariantMap results; ///< When it was granted.
        QString error;       ///< When it failed, in the portal's words or number.
    };

    struct Question {
        QString interface; ///< Like "org.freedesktop.portal.ScreenCast".
        QString method;
        QVariantList arguments; ///< Those before the options.
        QVariantMap options;
    };

    /// Asks. `answered` is called once, from the event loop, unless the request ends before.
    PortalRequest(const QDBusConnection &bus, const Question &question,
                  std::function<void(const Answer &)> answered, QObject *parent);
    /// A dialog that is still open is closed.
    ~PortalRequest() override;

    /// A word for a handle, new each time, as the portal asks its callers for them.
    static QString newToken();
    /// The path of a handle that was asked for by this word; `kind` is "request" or "session".
    static QString handlePath(const QDBusConnection &bus, const QString &kind,
                              const QString &token);

private:
    Q_SLOT void responded(uint code, const QVariantMap &results);
    void listen(const QString &path);
    void finish(const Answer &answer);

    QDBusConnection bus_;
    QString path_;
    std::function<void(const Answer &)> answered_; // null once it was called
};

namespace portal {

inline constexpr char service[] = "org.freedesktop.portal.Desktop";
inline constexpr char object[] = "/org/freedesktop/portal/desktop";

/// Our window, for the desktop to place its dialog over it, in the portal's words
/// (xdg-desktop-portal, "Window Identifiers"). Empty where the toolkit can't name it: without a
/// window, and on Wayland, where a name would have to be asked for (xdg-foreign) with what only the
/// toolkit's private headers give.
QString parentWindow();

} // namespace portal
