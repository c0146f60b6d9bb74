// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/owner_properties.h"

#include "platform/x11/property_values.h"

#include "platform/window_server.h"

#include <algorithm>
#include <array>
#include <span>
#include <unistd.h>

namespace x11 {

namespace {

constexpr std::int32_t desktopLayer = -1;
constexpr std::int32_t aboveLayer = 1;
// In words of four bytes; nobody's class or list of states is longer.
constexpr std::uint32_t longestProperty = 256;

using Property = Reply<xcb_get_property_reply_t>;

xcb_get_property_cookie_t ask(Connection &connection, xcb_window_t window, xcb_atom_t property,
                              xcb_atom_t type) {
    return xcb_get_property(connection.get(), 0, window, property, type, 0, longestProperty);
}

Property await(Connection &connection, xcb_get_property_cookie_t cookie) {
    return connection.reply<xcb_get_property_reply>(cookie);
}

/// The property's bytes when its values have that many bits; none otherwise, as when it is missing.
QByteArrayView bytes(const Property &property, std::uint8_t bits) {
    if (!property || property->format != bits)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(property.get())),
            xcb_get_property_value_length(property.get())};
}

std::vector<std::uint32_t> words(const Property &property) {
    return wordsFromProperty(bytes(property, 32));
}

std::optional<xcb_res_query_client_ids_cookie_t> askProcess(Connection &connection,
                                                            std::uint32_t anyResource) {
    if (!connection.extensions().resources)
        return {};
    const xcb_res_client_id_spec_t spec{anyResource, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    return xcb_res_query_client_ids(connection.get(), 1, &spec);
}

std::int64_t awaitProcess(Connection &connection,
                          const std::optional<xcb_res_query_client_ids_cookie_t> &cookie) {
    if (!cookie)
        return 0;
    const auto reply = connection.reply<xcb_res_query_client_ids_reply>(*cookie);
    if (!reply)
        return 0;
    auto values = xcb_res_query_client_ids_ids_iterator(reply.get());
    for (; values.rem > 0; xcb_res_client_id_value_next(&values))
        if ((values.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0 &&
            xcb_res_client_id_value_value_length(values.data) > 0)
            return *xcb_res_client_id_value_value(values.data);
    return 0;
}

std::int32_t layerOf(const Atoms &atoms, std::span<const std::uint32_t> types,
                     std::span<const std::uint32_t> states) {
    const auto has = [](auto list, xcb_atom_t atom) {
        return std::ranges::find(list, atom) != list.end();
    };
    if (has(types, atoms.windowTypeDesktop))
        return desktopLayer;
    const bool onTop = has(types, atoms.windowTypeDock) || has(states, atoms.netWmStateAbove);
    return onTop ? aboveLayer : 0;
}

/// Left, right, top, bottom, as these properties have it.
std::optional<QMargins> marginsFrom(std::span<const std::uint32_t> values) {
    constexpr std::uint32_t widest = 4096; // what goes beyond is nonsense
    if (values.size() < 4 || std::ranges::any_of(values, [](auto v) { return v > widest; }))
        return {};
    const auto pixels = [values](std::size_t at) { return static_cast<int>(values[at]); };
    return QMargins(pixels(0), pixels(2), pixels(1), pixels(3));
}

QRect rectFrom(std::span<const std::uint32_t> values) {
    if (values.size() < 4)
        return {};
    const auto pixels = [values](std::size_t at) {
        return static_cast<int>(static_cast<std::int16_t>(values[at]));
    };
    return {pixels(0), pixels(1), pixels(2), pixels(3)};
}

/// A window that is rolled up to its title bar counts as hidden for some window managers.
bool isMinimised(const Atoms &atoms, std::span<const std::uint32_t> wmState,
                 std::span<const std::uint32_t> states) {
    constexpr std::uint32_t iconic = 3; // ICCCM 4.1.3.1
    if (std::ranges::find(states, atoms.netWmStateShaded) != states.end())
        return false;
    return (!wmState.empty() && wmState.front() == iconic) ||
           std::ranges::find(states, atoms.netWmStateHidden) != states.end();
}

void awaitAppearance(Connection &connection, const OwnerQuestion &question,
                     std::span<const std::uint32_t> states, WindowOwner &owner) {
    constexpr std::uint32_t allWorkspaces = 0xffffffff;
    const auto wmState = words(await(connection, question.wmState));
    const auto desktop = words(await(connection, question.desktop));
    const auto opacity = words(await(connection, question.opacity));
    owner.minimised = isMinimised(connection.atoms(), wmState, states);
    if (!desktop.empty() && desktop.front() != allWorkspaces)
        owner.workspace = desktop.front();
    if (!opacity.empty())
        owner.opacity = static_cast<std::uint16_t>(opacity.front() >> 16);
    owner.frame = marginsFrom(words(await(connection, question.frame)));
    owner.shadow = marginsFrom(words(await(connection, question.shadow))).value_or(QMargins());
    owner.icon = rectFrom(words(await(connection, question.icon)));
    if (!question.place)
        return;
    const auto size = connection.reply<xcb_get_geometry_reply>(question.place->size);
    const auto corner = connection.reply<xcb_translate_coordinates_reply>(question.place->corner);
    if (size && corner)
        owner.client = QRect(corner->dst_x, corner->dst_y, size->width, size->height);
}

} // namespace

OwnerQuestion askOwner(Connection &connection, xcb_window_t top, xcb_window_t client) {
    const Atoms &atoms = connection.atoms();
    OwnerQuestion question{};
    question.windowClass = ask(connection, client, XCB_ATOM_WM_CLASS, XCB_GET_PROPERTY_TYPE_ANY);
    question.claimedPid = ask(connection, client, atoms.netWmPid, XCB_ATOM_CARDINAL);
    question.type = ask(connection, client, atoms.windowType, XCB_ATOM_ATOM);
    question.state = ask(connection, client, atoms.netWmState, XCB_ATOM_ATOM);
    question.sharing = ask(connection, client, atoms.sharing, XCB_ATOM_CARDINAL);
    question.wmState = ask(connection, client, atoms.wmState, XCB_GET_PROPERTY_TYPE_ANY);
    question.desktop = ask(connection, client, atoms.netWmDesktop, XCB_ATOM_CARDINAL);
    question.opacity = ask(connection, client, atoms.windowOpacity, XCB_ATOM_CARDINAL);
    question.frame = ask(connection, client, atoms.frameExtents, XCB_ATOM_CARDINAL);
    question.shadow = ask(connection, client, atoms.gtkFrameExtents, XCB_ATOM_CARDINAL);
    question.icon = ask(connection, client, atoms.iconGeometry, XCB_ATOM_CARDINAL);
    question.process = askProcess(connection, client);
    if (client != top)
        question.place = {.size = xcb_get_geometry(connection.get(), client),
                          .corner = xcb_translate_coordinates(connection.get(), client, top, 0, 0)};
    return question;
}

WindowOwner awaitOwner(Connection &connection, const OwnerQuestion &question, std::int64_t ownPid) {
    WindowOwner owner;
    owner.name = classFromProperty(bytes(await(connection, question.windowClass), 8));
    const auto claimedPid = words(await(connection, question.claimedPid));
    const auto types = words(await(connection, question.type));
    const auto states = words(await(connection, question.state));
    const auto sharing = words(await(connection, question.sharing));
    owner.pid = awaitProcess(connection, question.process);

    const bool isOurs =
        owner.pid != 0
            ? owner.pid == ownPid
            : !claimedPid.empty() && claimedPid.front() == static_cast<std::uint32_t>(getpid());
    owner.isOurs = isOurs;
    if (isOurs)
        owner.name = ownWindowsName;
    if (owner.pid == 0 && !claimedPid.empty())
        owner.pid = claimedPid.front();
    if (!sharing.empty() && sharing.front() == 0)
        owner.sharingState = 0;
    owner.layer = layerOf(connection.atoms(), types, states);
    owner.isPanel = std::ranges::find(types, connection.atoms().windowTypeDock) != types.end();
    awaitAppearance(connection, question, states, owner);
    return owner;
}

bool tellsOfOwner(const Connection &connection, xcb_atom_t property) {
    const Atoms &atoms = connection.atoms();
    const std::array relevant{xcb_atom_t{XCB_ATOM_WM_CLASS},
                              atoms.netWmPid,
                              atoms.windowType,
                              atoms.netWmState,
                              atoms.sharing,
                              atoms.wmState,
                              atoms.netWmDesktop,
                              atoms.windowOpacity,
                              atoms.frameExtents,
                              atoms.gtkFrameExtents,
                              atoms.iconGeometry};
    return std::ranges::find(relevant, property) != relevant.end();
}

std::int64_t ownProcess(Connection &connection) {
    return awaitProcess(connection, askProcess(connection, connection.setup().resource_id_base));
}

} // namespace x11
