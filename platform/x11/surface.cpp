// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/surface.h"

#include <vector>

namespace x11 {

namespace {

std::int16_t coordinate(int pixels) { return static_cast<std::int16_t>(pixels); }
std::uint16_t extent(int pixels) { return static_cast<std::uint16_t>(pixels); }

} // namespace

std::unique_ptr<Surface> Surface::create(Connection &connection, const PictureFormats &formats,
                                         QSize size) {
    std::unique_ptr<Surface> surface(new Surface(connection));
    const auto pixmap = connection.newId();
    if (!connection.succeeded(xcb_create_pixmap_checked(
            connection.get(), PictureFormats::targetDepth, pixmap, connection.root(),
            extent(size.width()), extent(size.height()))))
        return {};
    surface->pixmap_ = pixmap;
    surface->picture_ = connection.newId();
    xcb_render_create_picture(connection.get(), surface->picture_, pixmap, formats.target(), 0,
                              nullptr);
    return surface;
}

Surface::~Surface() {
    if (picture_ != 0)
        xcb_render_free_picture(connection_.get(), picture_);
    if (pixmap_ != 0)
        xcb_free_pixmap(connection_.get(), pixmap_);
}

void copyRegion(Connection &connection, xcb_render_picture_t from, xcb_render_picture_t to,
                const QRegion &where) {
    for (const auto &r : where)
        xcb_render_composite(connection.get(), XCB_RENDER_PICT_OP_SRC, from, XCB_NONE, to,
                             coordinate(r.x()), coordinate(r.y()), 0, 0, coordinate(r.x()),
                             coordinate(r.y()), extent(r.width()), extent(r.height()));
}

void fillBlack(Connection &connection, xcb_render_picture_t to, const QRegion &where,
               std::uint8_t operation) {
    std::vector<xcb_rectangle_t> rectangles;
    for (const auto &r : where)
        rectangles.push_back(
            {coordinate(r.x()), coordinate(r.y()), extent(r.width()), extent(r.height())});
    if (rectangles.empty())
        return;
    const xcb_render_color_t opaqueBlack{0, 0, 0, 0xffff};
    xcb_render_fill_rectangles(connection.get(), operation, to, opaqueBlack,
                               static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
}

} // namespace x11
