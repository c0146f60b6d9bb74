// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/compositing.h"

#include <QByteArray>
#include <QGuiApplication>

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

struct Freed {
    void operator()(void *reply) const { std::free(reply); }
};
template <typename Reply> using Owned = std::unique_ptr<Reply, Freed>;

} // namespace

bool desktopBlendsWindows() {
    // Other window systems blend by themselves.
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return true;
    int screen = 0;
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, &screen), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()))
        return false;
    // Extended Window Manager Hints 1.5, "Compositing Managers": whoever composites screen n owns
    // the selection _NET_WM_CM_Sn.
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screen);
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection.get(),
        xcb_intern_atom(connection.get(), 1, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection.get(), xcb_get_selection_owner(connection.get(), atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

void shapeWindow(WId window, const QRegion &shape) {
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return;
    const auto id = static_cast<xcb_window_t>(window);
    if (shape.isEmpty()) {
        xcb_shape_mask(x11->connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, id, 0, 0,
                       XCB_PIXMAP_NONE);
    } else {
        std::vector<xcb_rectangle_t> boxes;
        for (const QRect &box : shape)
            boxes.push_back({static_cast<std::int16_t>(box.x()), static_cast<std::int16_t>(box.y()),
                             static_cast<std::uint16_t>(box.width()),
                             static_cast<std::uint16_t>(box.height())});
        // A region lists its boxes in bands from the top down, each from left to right.
        xcb_shape_rectangles(x11->connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                             XCB_CLIP_ORDERING_YX_BANDED, id, 0, 0,
                             static_cast<std::uint32_t>(boxes.size()), boxes.data());
    }
    xcb_flush(x11->connection());
}
