// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"

#include <QGuiApplication>

#include <string_view>

/// For the few requests that are about the toolkit's own windows, outside the window server's back
/// end and its connection.
namespace x11 {

/// The toolkit's connection, borrowed; null where it has none: on other window systems, and on
/// platforms that only borrow from X11, which have the interface all the same.
inline xcb_connection_t *toolkitConnection() {
    const auto *x11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

/// The atom of this name, made where there is none yet; XCB_ATOM_NONE when the server has gone.
inline xcb_atom_t internAtom(xcb_connection_t *connection, std::string_view name) {
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace x11
