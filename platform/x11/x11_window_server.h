// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"
#include "platform/x11/connection.h"
#include "platform/x11/desktop_model.h"
#include "platform/x11/picture_ring.h"
#include "platform/x11/underlay.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

class QSocketNotifier;

/// The window server of an X11 display.
///
/// Numbers are those of the root window's children (with a window manager: its frames), and the
/// root window's own number for the desktop's background. Windows that are on the display without
/// being shown (minimised, of another workspace) are not among them.
///
/// The picture of all windows but some, in their order, is the screen as it is shown, effects and
/// all, and only where those some are something else: what lies beneath them, as well as that can
/// be had (see x11::Underlay). Any other list is composed from the windows' own pictures; where a
/// compositing manager runs, windows with an alpha channel are blended then, without one they are
/// shown raw.
///
/// A window opts out of sharing by the property `_TOVAREL_SHARING` on the client window: type
/// CARDINAL, format 32, one value, 0 = it may not be shared. Any other value, or none, shares it.
///
/// It talks to the server over a connection of its own. What was grabbed before is drawn again only
/// where it changed, so that the cost of a grab follows what changed; a grab of a desktop on which
/// nothing changed sends nothing.
class X11WindowServer : public WindowServer {
public:
    struct Options {
        const char *display = nullptr; ///< null: what DISPLAY names
        x11::TransferMethod bestMethod = x11::TransferMethod::SharedPixmap;
    };

    /// Null, and why, when this display cannot be recorded.
    static std::unique_ptr<X11WindowServer> create(const Options &options, Obstacle &obstacle);
    ~X11WindowServer() override;

    WindowServerCapabilities capabilities() const override;
    std::optional<Obstacle> obstacle() const override { return {}; }
    std::vector<WindowDescription> listWindows() override;
    std::vector<TitledWindow> titledWindows() override;
    using WindowServer::composite;
    std::optional<Image> composite(std::span<const std::uint32_t> numbers,
                                   const std::optional<QRect> &part) override;

    std::unique_ptr<PointerWatch> watchPointer() override;
    std::unique_ptr<InputWatch> watchInput(InputKinds kinds) override;

    /// How pixels come over; none before the first composite.
    std::optional<x11::TransferMethod> method() const { return ring_.method(); }

private:
    X11WindowServer(std::unique_ptr<x11::Connection> connection, x11::TransferMethod bestMethod);

    QRegion follow(const QRect &wanted, const x11::PictureRing::Turn *begun = nullptr);
    bool draw(x11::PictureRing::Turn &turn, const QRect &part, QRegion &drawn);
    std::optional<Image> giveUp();
    void watchWhileIdle();

    std::unique_ptr<x11::Connection> connection_;
    HandAccess clicks_, keys_;
    x11::DesktopModel model_;
    x11::Underlay underlay_;
    x11::PictureRing ring_;

    std::vector<std::uint32_t> numbers_; // what `picture_` shows
    std::optional<QRect> part_;          // and where
    std::optional<Image> picture_;

    QTimer idle_;
    std::unique_ptr<QSocketNotifier> notifier_;
};
