// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/window_activation.h"

#include "platform/x11/toolkit/toolkit_connection.h"

namespace {

/// The request comes from the user through another program (EWMH 1.5, _NET_ACTIVE_WINDOW).
constexpr std::uint32_t sourceIsUser = 2;

} // namespace

void bringToFront(quintptr window) {
    const x11::OwnConnection connection = x11::openDisplay();
    if (!connection)
        return;
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = static_cast<xcb_window_t>(window);
    request.type = x11::internAtom(connection.get(), "_NET_ACTIVE_WINDOW");
    request.data.data32[0] = sourceIsUser;
    request.data.data32[1] = XCB_CURRENT_TIME;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    xcb_send_event(connection.get(), 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&request));
    xcb_flush(connection.get());
}
