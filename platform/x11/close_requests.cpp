// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/close_requests.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace {

/// The event's kind without the bit that marks events sent by another client.
constexpr std::uint8_t kindMask = 0x7f;
constexpr std::uint8_t wholeWords = 32;

xcb_atom_t atom(xcb_connection_t *connection, std::string_view name) {
    const xcb_intern_atom_cookie_t cookie = xcb_intern_atom_unchecked(
        connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

} // namespace

CloseRequests::CloseRequests(Handler handler) : handler_(std::move(handler)) {
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Platforms that only borrow from X11 have the interface, but no connection.
    if (!x11 || !x11->connection())
        return;
    protocols_ = atom(x11->connection(), "WM_PROTOCOLS");
    deleteWindow_ = atom(x11->connection(), "WM_DELETE_WINDOW");
    QCoreApplication::instance()->installNativeEventFilter(this);
}

bool CloseRequests::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *) {
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & kindMask) != XCB_CLIENT_MESSAGE)
        return false;
    const auto *request = static_cast<const xcb_client_message_event_t *>(message);
    if (request->format != wholeWords || request->type != protocols_ ||
        request->data.data32[0] != deleteWindow_)
        return false;
    return handler_(request->window);
}
