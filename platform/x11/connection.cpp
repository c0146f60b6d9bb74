// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/connection.h"

#include <xcb/composite.h>
#include <xcb/damage.h>
#include <xcb/render.h>
#include <xcb/res.h>
#include <xcb/shape.h>
#include <xcb/shm.h>
#include <xcb/xfixes.h>

#include <utility>
#include <vector>

namespace x11 {

namespace {

const xcb_query_extension_reply_t *present(xcb_connection_t *connection, xcb_extension_t &which) {
    const auto *data = xcb_get_extension_data(connection, &which);
    return data && data->present ? data : nullptr;
}

bool atLeast(std::uint32_t major, std::uint32_t minor, std::uint32_t wantedMajor,
             std::uint32_t wantedMinor) {
    return major > wantedMajor || (major == wantedMajor && minor >= wantedMinor);
}

} // namespace

std::unique_ptr<Connection> Connection::open(const char *display) {
    int screenNumber = 0;
    xcb_connection_t *raw = xcb_connect(display, &screenNumber);
    if (xcb_connection_has_error(raw) != 0) {
        xcb_disconnect(raw);
        return {};
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(raw));
    for (int i = 0; i < screenNumber && screens.rem > 1; ++i)
        xcb_screen_next(&screens);
    std::unique_ptr<Connection> connection(new Connection(raw, screens.data));
    connection->display_ = display ? display : "";
    connection->queryExtensions();
    connection->internAtoms(screenNumber);
    return connection;
}

Connection::Connection(xcb_connection_t *connection, xcb_screen_t *screen)
    : connection_(connection), screen_(screen) {}

Connection::~Connection() { xcb_disconnect(connection_); }

bool Connection::succeeded(xcb_void_cookie_t checked) {
    const Reply<xcb_generic_error_t> error(xcb_request_check(connection_, checked));
    return !error && !broken();
}

void Connection::roundTrip() { reply<xcb_get_input_focus_reply>(xcb_get_input_focus(connection_)); }

// Most extensions refuse every request of a client that has not asked for their version.
void Connection::queryExtensions() {
    for (auto *extension : {&xcb_composite_id, &xcb_damage_id, &xcb_xfixes_id, &xcb_render_id,
                            &xcb_shape_id, &xcb_res_id, &xcb_shm_id})
        xcb_prefetch_extension_data(connection_, extension);

    if (const auto *data = present(connection_, xcb_composite_id)) {
        // Named pixmaps came with 0.2.
        const auto version = reply<xcb_composite_query_version_reply>(
            xcb_composite_query_version(connection_, 0, 4));
        extensions_.composite =
            version && atLeast(version->major_version, version->minor_version, 0, 2);
        extensions_.compositeRequest = data->major_opcode;
    }
    if (const auto *data = present(connection_, xcb_damage_id)) {
        const auto version =
            reply<xcb_damage_query_version_reply>(xcb_damage_query_version(connection_, 1, 1));
        extensions_.damage = version != nullptr;
        extensions_.damageEvent = data->first_event;
    }
    if (const auto *data = present(connection_, xcb_xfixes_id)) {
        const auto version =
            reply<xcb_xfixes_query_version_reply>(xcb_xfixes_query_version(connection_, 5, 0));
        extensions_.fixes = version != nullptr;
        extensions_.fixesEvent = data->first_event;
    }
    if (present(connection_, xcb_render_id))
        extensions_.render = reply<xcb_render_query_version_reply>(
                                 xcb_render_query_version(connection_, 0, 11)) != nullptr;
    if (const auto *data = present(connection_, xcb_shape_id)) {
        extensions_.shape = true;
        extensions_.shapeEvent = data->first_event;
    }
    if (present(connection_, xcb_res_id)) {
        const auto version =
            reply<xcb_res_query_version_reply>(xcb_res_query_version(connection_, 1, 2));
        extensions_.resources =
            version && atLeast(version->server_major, version->server_minor, 1, 2);
    }
    if (present(connection_, xcb_shm_id)) {
        const auto version = reply<xcb_shm_query_version_reply>(xcb_shm_query_version(connection_));
        extensions_.sharedMemory = version != nullptr;
        extensions_.sharedPixmaps = version && version->shared_pixmaps &&
                                    version->pixmap_format == XCB_IMAGE_FORMAT_Z_PIXMAP;
    }
}

void Connection::internAtoms(int screenNumber) {
    const std::vector<std::pair<xcb_atom_t Atoms::*, std::string>> names = {
        {&Atoms::clientList, "_NET_CLIENT_LIST"},
        {&Atoms::clientListStacking, "_NET_CLIENT_LIST_STACKING"},
        {&Atoms::compositingManager, "_NET_WM_CM_S" + std::to_string(screenNumber)},
        {&Atoms::currentDesktop, "_NET_CURRENT_DESKTOP"},
        {&Atoms::frameExtents, "_NET_FRAME_EXTENTS"},
        {&Atoms::gtkFrameExtents, "_GTK_FRAME_EXTENTS"},
        {&Atoms::iconGeometry, "_NET_WM_ICON_GEOMETRY"},
        {&Atoms::netWmDesktop, "_NET_WM_DESKTOP"},
        {&Atoms::netWmPid, "_NET_WM_PID"},
        {&Atoms::netWmState, "_NET_WM_STATE"},
        {&Atoms::netWmStateAbove, "_NET_WM_STATE_ABOVE"},
        {&Atoms::netWmStateHidden, "_NET_WM_STATE_HIDDEN"},
        {&Atoms::netWmStateShaded, "_NET_WM_STATE_SHADED"},
        {&Atoms::rootPixmap, "_XROOTPMAP_ID"},
        {&Atoms::sharing, "_TOVAREL_SHARING"},
        {&Atoms::windowOpacity, "_NET_WM_WINDOW_OPACITY"},
        {&Atoms::windowType, "_NET_WM_WINDOW_TYPE"},
        {&Atoms::windowTypeDesktop, "_NET_WM_WINDOW_TYPE_DESKTOP"},
        {&Atoms::windowTypeDock, "_NET_WM_WINDOW_TYPE_DOCK"},
        {&Atoms::wmState, "WM_STATE"},
    };
    std::vector<xcb_intern_atom_cookie_t> cookies;
    for (const auto &[member, name] : names)
        cookies.push_back(
            xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.c_str()));
    for (std::size_t i = 0; i < names.size(); ++i)
        if (const auto answer = reply<xcb_intern_atom_reply>(cookies[i]))
            atoms_.*names[i].first = answer->atom;
}

} // namespace x11
