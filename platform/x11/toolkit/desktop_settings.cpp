// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/desktop_settings.h"

#include "platform/x11/property_values.h"
#include "platform/x11/toolkit/toolkit_connection.h"

namespace {

constexpr std::uint32_t mostWords = 65536; // of the property; a few hundred are usual

} // namespace

std::optional<std::int32_t> desktopSetting(std::string_view name) {
    // The toolkit's own connection does not say which of the server's screens is its.
    if (!x11::toolkitConnection())
        return std::nullopt;
    int screen = 0;
    const x11::OwnConnection connection = x11::openDisplay(nullptr, &screen);
    if (!connection)
        return std::nullopt;
    const x11::Reply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection.get(),
        xcb_get_selection_owner(
            connection.get(),
            x11::internAtom(connection.get(), "_XSETTINGS_S" + std::to_string(screen))),
        nullptr));
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return std::nullopt;
    const xcb_atom_t settings = x11::internAtom(connection.get(), "_XSETTINGS_SETTINGS");
    const x11::Reply<xcb_get_property_reply_t> property(xcb_get_property_reply(
        connection.get(),
        xcb_get_property(connection.get(), 0, owner->owner, settings, settings, 0, mostWords),
        nullptr));
    if (!property)
        return std::nullopt;
    return x11::settingFromProperty(
        QByteArrayView(static_cast<const char *>(xcb_get_property_value(property.get())),
                       xcb_get_property_value_length(property.get())),
        name);
}
