// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/close_requests.h"

#include "platform/x11/toolkit/toolkit_connection.h"

#include <utility>

namespace {

/// The event's kind without the bit that marks events sent by another client.
constexpr std::uint8_t kindMask = 0x7f;
constexpr std::uint8_t wholeWords = 32;

} // namespace

CloseRequests::CloseRequests(Handler handler) : handler_(std::move(handler)) {
    xcb_connection_t *connection = x11::toolkitConnection();
    if (!connection)
        return;
    protocols_ = x11::internAtom(connection, "WM_PROTOCOLS");
    deleteWindow_ = x11::internAtom(connection, "WM_DELETE_WINDOW");
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
