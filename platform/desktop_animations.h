// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <cstdint>

/// Whether the desktop wants things to move by themselves. People switch that off whom it distracts
/// or makes ill. Asked are, as far as they are there: the XSETTINGS of GTK desktops
/// (`Gtk/EnableAnimations`), Plasma's settings file (`AnimationDurationFactor` of `[KDE]` in
/// `kdeglobals`), and the desktop portal's settings (`enable-animations` of
/// `org.gnome.desktop.interface`). One that says no is enough.
class DesktopAnimations : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asks anew; the answer may come at once, or from the event loop within a second. One that is
    /// awaited from before is given up.
    void ask();

Q_SIGNALS:
    /// Animations are on; they are where nobody says anything.
    void answered(bool on);

private:
    void askPortal();

    std::uint64_t question_ = 0;
};
