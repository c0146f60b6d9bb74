// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"

#include <xcb/res.h>

#include <QMargins>
#include <QRect>
#include <QString>

#include <array>
#include <optional>

namespace x11 {

/// What a client window tells of its owner, and what the server tells of its process. In two steps,
/// asking and awaiting, so that many windows cost one wait. All of it may be missing: a window can
/// vanish, and clients are free to set nothing.
struct WindowOwner {
    /// The class of WM_CLASS, or `ownWindowsName` for windows of any X connection of this process.
    std::optional<QString> name;
    /// The window is this program's own.
    bool isOurs = false;
    /// As the server knows it; what the window claims when the server does not, else 0.
    std::int64_t pid = 0;
    /// 0 when the client window carries our sharing property with the value 0.
    std::int32_t sharingState = 1;
    /// 0 ordinary, below for desktop windows, above for docks and what is kept on top.
    std::int32_t layer = 0;
    /// It is a panel of the desktop.
    bool isPanel = false;
    /// It is minimised (ICCCM 4.1.3.1, EWMH _NET_WM_STATE_HIDDEN); window managers may leave it
    /// mapped all the same.
    bool minimised = false;
    /// The workspace that it is on (EWMH _NET_WM_DESKTOP); none when on all, or not known.
    std::optional<std::uint32_t> workspace;
    /// How opaque a compositing manager shows it, 0xffff: fully (_NET_WM_WINDOW_OPACITY).
    std::uint16_t opacity = 0xffff;
    /// What the window manager shows around the client (EWMH _NET_FRAME_EXTENTS); none when it
    /// does not say. Frames may be larger than that, with a rim that only takes the pointer.
    std::optional<QMargins> frame;
    /// How much of the client window is a shadow that it draws itself (_GTK_FRAME_EXTENTS).
    QMargins shadow;
    /// Where its button in a panel is, empty when that is not known (EWMH _NET_WM_ICON_GEOMETRY):
    /// desktops let a window fly there when it is minimised.
    QRect icon;
    /// The client's place, relative to the inner corner of the window on the root that holds it;
    /// empty for a client that is not in a frame.
    QRect client;
};

/// The requests that are under way for one window.
struct OwnerQuestion {
    xcb_get_property_cookie_t windowClass, claimedPid, type, state, sharing;
    xcb_get_property_cookie_t wmState, desktop, opacity, frame, shadow, icon;
    struct Place {
        xcb_get_geometry_cookie_t size;
        xcb_translate_coordinates_cookie_t corner;
    };
    std::optional<Place> place;
    std::optional<xcb_res_query_client_ids_cookie_t> process;
};

/// Asks, and waits for nothing. `top` is the window on the root that holds the client, or itself.
OwnerQuestion askOwner(Connection &connection, xcb_window_t top, xcb_window_t client);

/// Waits for the answers. `ownPid` is this process as the server sees it, 0 when it does not tell.
WindowOwner awaitOwner(Connection &connection, const OwnerQuestion &question, std::int64_t ownPid);

/// Whether a property has a part in the above.
bool tellsOfOwner(const Connection &connection, xcb_atom_t property);

/// This process, as the server sees it: with processes in name spaces of their own it may bear
/// another number than the one that it knows itself by. 0 when the server cannot tell.
std::int64_t ownProcess(Connection &connection);

} // namespace x11
