// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/connection.h"

#include "platform/x11/log.h"

#include <xcb/composite.h>
#include <xcb/damage.h>
#include <xcb/render.h>
#include <xcb/res.h>
#include <xcb/shape.h>
#include <xcb/shm.h>
#include <xcb/xfixes.h>

#include <utility>
#include <vector>

Q_LOGGING_CATEGORY(logX11, "tovarel.x11", QtWarningMsg)

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

OwnConnection openDisplay(const char *display, int *screen) {
    OwnConnection connection(xcb_connect(display, screen));
    if (xcb_connection_has_error(connection.get()) != 0)
        connection.reset();
    return connection;
}

std::unique_ptr<Connection> Connection::open(const char *display) {
    int screenNumber = 0;
    OwnConnection raw = openDisplay(display, &screenNumber);
    if (!raw)
        return {};
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(raw.get()));
    for (int i = 0; i < screenNumber && screens.rem > 1; ++i)
        xcb_screen_next(&screens);
    std::unique_ptr<Connection> connection(new Connection(std::move(raw), screens.data));
    connection->display_ = display ? display : "";
    connection->queryExtensions();
    connection->internAtoms(screenNumber);
    return connection;
}

Connection::Connection(OwnConnection connection, xcb_screen_t *screen)
    : connection_(std::move(connection)), screen_(screen) {}

void logDropped(const xcb_generic_error_t &error) {
    qCDebug(logX11, "dropped: error %u of request %u.%u about resource 0x%x", error.error_code,
            error.major_code, error.minor_code, error.resource_id);
}

bool Connection::succeeded(xcb_void_cookie_t checked) {
    const Reply<xcb_generic_error_t> error(xcb_request_check(get(), checked));
    if (error)
        logDropped(*error);
    return !error && !broken();
}

void Connection::roundTrip() { reply<xcb_get_input_focus_reply>(xcb_get_input_focus(get())); }

// Most extensions refuse every request of a client that has not asked for their version.
void Connection::queryExtensions() {
    for (auto *extension : {&xcb_composite_id, &xcb_damage_id, &xcb_xfixes_id, &xcb_render_id,
                            &xcb_shape_id, &xcb_res_id, &xcb_shm_id})
        xcb_prefetch_extension_data(get(), extension);

    if (const auto *data = present(get(), xcb_composite_id)) {
        // Named pixmaps came with 0.2.
        const auto version =
            reply<xcb_composite_query_version_reply>(xcb_composite_query_version(get(), 0, 4));
        extensions_.composite =
            version && atLeast(version->major_version, version->minor_version, 0, 2);
        extensions_.compositeRequest = data->major_opcode;
    }
    if (const auto *data = present(get(), xcb_damage_id)) {
        const auto version =
            reply<xcb_damage_query_version_reply>(xcb_damage_query_version(get(), 1, 1));
        extensions_.damage = version != nullptr;
        extensions_.damageEvent = data->first_event;
    }
    if (const auto *data = present(get(), xcb_xfixes_id)) {
        const auto version =
            reply<xcb_xfixes_query_version_reply>(xcb_xfixes_query_version(get(), 5, 0));
        extensions_.fixes = version != nullptr;
        extensions_.fixesEvent = data->first_event;
    }
    if (present(get(), xcb_render_id))
        extensions_.render = reply<xcb_render_query_version_reply>(
                                 xcb_render_query_version(get(), 0, 11)) != nullptr;
    if (const auto *data = present(get(), xcb_shape_id)) {
        extensions_.shape = true;
        extensions_.shapeEvent = data->first_event;
    }
    if (present(get(), xcb_res_id)) {
        const auto version = reply<xcb_res_query_version_reply>(xcb_res_query_version(get(), 1, 2));
        extensions_.resources =
            version && atLeast(version->server_major, version->server_minor, 1, 2);
    }
    if (present(get(), xcb_shm_id)) {
        const auto version = reply<xcb_shm_query_version_reply>(xcb_shm_query_version(get()));
        extensions_.sharedMemory = version != nullptr;
        extensions_.sharedPixmaps = version && version->shared_pixmaps &&
                                    version->pixmap_format == XCB_IMAGE_FORMAT_Z_PIXMAP;
    }
}

void Connection::internAtoms(int screenNumber) {
    const std::vector<std::pair<xcb_atom_t Atoms::*, std::string>> names = {
        {&Atoms::activeWindow, "_NET_ACTIVE_WINDOW"},
        {&Atoms::clientList, "_NET_CLIENT_LIST"},
        {&Atoms::clientListStacking, "_NET_CLIENT_LIST_STACKING"},
        {&Atoms::compositingManager, "_NET_WM_CM_S" + std::to_string(screenNumber)},
        {&Atoms::currentDesktop, "_NET_CURRENT_DESKTOP"},
        {&Atoms::frameExtents, "_NET_FRAME_EXTENTS"},
        {&Atoms::gtkFrameExtents, "_GTK_FRAME_EXTENTS"},
        {&Atoms::iconGeometry, "_NET_WM_ICON_GEOMETRY"},
        {&Atoms::netWmDesktop, "_NET_WM_DESKTOP"},
        {&Atoms::netWmName, "_NET_WM_NAME"},
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
    cookies.reserve(names.size());
    for (const auto &[member, name] : names)
        cookies.push_back(
            xcb_intern_atom(get(), 0, static_cast<std::uint16_t>(name.size()), name.c_str()));
    for (std::size_t i = 0; i < names.size(); ++i)
        if (const auto answer = reply<xcb_intern_atom_reply>(cookies[i]))
            atoms_.*names[i].first = answer->atom;
}

} // namespace x11
