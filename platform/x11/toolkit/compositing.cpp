// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/compositing.h"

#include "platform/x11/toolkit/toolkit_connection.h"

#include <QByteArray>

#include <xcb/shape.h>

#include <vector>

bool desktopBlendsWindows() {
    // Other window systems blend by themselves.
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return true;
    int screen = 0;
    const x11::OwnConnection connection = x11::openDisplay(nullptr, &screen);
    if (!connection)
        return false;
    // Extended Window Manager Hints 1.5, "Compositing Managers": whoever composites screen n owns
    // the selection _NET_WM_CM_Sn.
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screen);
    const xcb_atom_t atom = x11::internAtom(connection.get(), name.toStdString());
    const x11::Reply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection.get(), xcb_get_selection_owner(connection.get(), atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

void shapeWindow(WId window, const QRegion &shape) {
    xcb_connection_t *connection = x11::toolkitConnection();
    if (!connection)
        return;
    const auto id = static_cast<xcb_window_t>(window);
    if (shape.isEmpty()) {
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, id, 0, 0,
                       XCB_PIXMAP_NONE);
    } else {
        std::vector<xcb_rectangle_t> boxes;
        for (const QRect &box : shape)
            boxes.push_back({static_cast<std::int16_t>(box.x()), static_cast<std::int16_t>(box.y()),
                             static_cast<std::uint16_t>(box.width()),
                             static_cast<std::uint16_t>(box.height())});
        // A region lists its boxes in bands from the top down, each from left to right.
        xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                             XCB_CLIP_ORDERING_YX_BANDED, id, 0, 0,
                             static_cast<std::uint32_t>(boxes.size()), boxes.data());
    }
    xcb_flush(connection);
}
