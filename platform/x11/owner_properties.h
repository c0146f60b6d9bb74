// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"

#include <xcb/res.h>

#include <QString>

#include <array>
#include <optional>

namespace x11 {

/// What a client window tells of its owner, and what the server tells of its process. In two steps,
/// asking and awaiting, so that many windows cost one wait. All of it may be missing: a window can
/// vanish, and clients are free to set nothing.
struct WindowOwner {
    /// The class of WM_CLASS, or "Tovarel" for windows of any X connection of this process.
    std::optional<QString> name;
    /// As the server knows it; what the window claims when the server does not, else 0.
    std::int64_t pid = 0;
    /// 0 when the client window carries our sharing property with the value 0.
    std::int32_t sharingState = 1;
    /// 0 ordinary, below for desktop windows, above for docks and what is kept on top.
    std::int32_t layer = 0;
};

/// The requests that are under way for one window.
struct OwnerQuestion {
    xcb_get_property_cookie_t windowClass, claimedPid, type, state, sharing;
    std::optional<xcb_res_query_client_ids_cookie_t> process;
};

/// Asks, and waits for nothing.
OwnerQuestion askOwner(Connection &connection, xcb_window_t client);

/// Waits for the answers. `ownPid` is this process as the server sees it, 0 when it does not tell.
WindowOwner awaitOwner(Connection &connection, const OwnerQuestion &question, std::int64_t ownPid);

/// Whether a property has a part in the above.
bool tellsOfOwner(const Connection &connection, xcb_atom_t property);

/// This process, as the server sees it: with processes in name spaces of their own it may bear
/// another number than the one that it knows itself by. 0 when the server cannot tell.
std::int64_t ownProcess(Connection &connection);

} // namespace x11
