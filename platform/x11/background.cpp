// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/background.h"

namespace x11 {

Background::Background(Connection &connection, const PictureFormats &formats)
    : connection_(connection), formats_(formats) {}

void Background::invalidate() {
    stale_ = true;
    ++generation_;
}

xcb_render_picture_t Background::picture() {
    if (stale_)
        lookUp();
    return picture_;
}

void Background::lookUp() {
    stale_ = false;
    if (picture_ != 0)
        xcb_render_free_picture(connection_.get(), picture_);
    picture_ = 0;

    xcb_connection_t *c = connection_.get();
    const auto property = connection_.reply<xcb_get_property_reply>(xcb_get_property(
        c, 0, connection_.root(), connection_.atoms().rootPixmap, XCB_ATOM_PIXMAP, 0, 1));
    if (!property || property->format != 32 || property->value_len != 1)
        return;
    const auto pixmap = *static_cast<xcb_pixmap_t *>(xcb_get_property_value(property.get()));

    // The program that set it may be long gone, and its number may belong to a window by now.
    const auto asDrawable = xcb_get_geometry(c, pixmap);
    const auto asWindow = xcb_get_window_attributes(c, pixmap);
    const auto geometry = connection_.reply<xcb_get_geometry_reply>(asDrawable);
    const bool isWindow = connection_.reply<xcb_get_window_attributes_reply>(asWindow) != nullptr;
    if (!geometry || isWindow || geometry->depth != connection_.screen().root_depth)
        return;

    const std::uint32_t repeat = XCB_RENDER_REPEAT_NORMAL;
    picture_ = connection_.newId();
    xcb_render_create_picture(c, picture_, pixmap, formats_.of(connection_.screen().root_visual).id,
                              XCB_RENDER_CP_REPEAT, &repeat);
}

} // namespace x11
