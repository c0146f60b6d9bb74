// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/desktop_model.h"
#include "platform/x11/property_values.h"

namespace x11 {

namespace {

constexpr std::uint32_t longestTitle = 256; // words of four bytes

struct TitleQuestion {
    xcb_get_property_cookie_t ewmh, icccm;
};

TitleQuestion askTitle(Connection &connection, xcb_window_t client) {
    const auto ask = [&](xcb_atom_t property) {
        return xcb_get_property(connection.get(), 0, client, property, XCB_GET_PROPERTY_TYPE_ANY, 0,
                                longestTitle);
    };
    return {ask(connection.atoms().netWmName), ask(XCB_ATOM_WM_NAME)};
}

/// EWMH's title goes before the older one (EWMH 1.5, _NET_WM_NAME).
QString awaitTitle(Connection &connection, const TitleQuestion &question) {
    QString title;
    for (const auto cookie : {question.ewmh, question.icccm}) {
        const auto property = connection.reply<xcb_get_property_reply>(cookie);
        if (title.isEmpty() && property && property->format == 8)
            title =
                textFromProperty({static_cast<const char *>(xcb_get_property_value(property.get())),
                                  xcb_get_property_value_length(property.get())});
    }
    return title;
}

} // namespace

/// A frame may have a rim around what is seen, and a client a shadow of its own.
QRect DesktopModel::visibleFrame(const StackedWindow &window, const WindowOwner &owner) const {
    const QRect client =
        owner.client.isEmpty() ? QRect(QPoint(), window.outer.size()) : owner.client;
    if (!owner.shadow.isNull())
        return client.marginsRemoved(owner.shadow).translated(innerCorner(window));
    if (!owner.frame || owner.client.isEmpty())
        return window.outer;
    return client.marginsAdded(*owner.frame)
        .translated(innerCorner(window))
        .intersected(window.outer);
}

std::vector<TitledWindow> DesktopModel::titledWindows() {
    const auto shown = shownFrontToBack();
    std::vector<TitledWindow> titled;
    std::vector<TitleQuestion> questions;
    for (const auto *window : shown) {
        const auto *owner = owners_.find(window->number);
        // Where no window manager runs, nobody manages the windows that one would.
        const bool isOrdinary = !window->overrideRedirect || owners_.isManaged(window->number);
        if (!owner || !isOrdinary || owner->isOurs || owner->sharingState == 0 ||
            owner->layer < 0 || owner->isPanel)
            continue;
        titled.push_back({.title = {}, .frame = visibleFrame(*window, *owner)});
        questions.push_back(askTitle(connection_, owners_.clientOf(window->number)));
    }
    for (std::size_t i = 0; i < titled.size(); ++i)
        titled[i].title = awaitTitle(connection_, questions[i]);
    return titled;
}

} // namespace x11
