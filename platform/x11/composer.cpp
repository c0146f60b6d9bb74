// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/composer.h"

#include "platform/x11/surface.h"

namespace x11 {

namespace {

std::int16_t coordinate(int pixels) { return static_cast<std::int16_t>(pixels); }
std::uint16_t extent(int pixels) { return static_cast<std::uint16_t>(pixels); }

} // namespace

void Composer::paintWindow(xcb_render_picture_t target, const Layer &layer, const QRegion &where) {
    if (where.isEmpty())
        return;
    const auto source = model_.picture(layer);
    if (source != 0)
        paint(target, layer, source, where);
}

void Composer::paintBackground(xcb_render_picture_t target, const QRegion &where) {
    if (where.isEmpty())
        return;
    const auto source = model_.background().picture();
    if (source == 0)
        fillBlack(connection_, target, where, XCB_RENDER_PICT_OP_SRC);
    else
        paint(target, {}, source, where);
}

void Composer::paint(xcb_render_picture_t target, const Layer &layer, xcb_render_picture_t source,
                     const QRegion &where) {
    xcb_connection_t *c = connection_.get();
    xcb_render_picture_t mask = XCB_NONE;
    if (layer.opacity < 0xffff) {
        mask = connection_.newId();
        xcb_render_create_solid_fill(c, mask, {0, 0, 0, layer.opacity});
    }
    const std::uint8_t operation = layer.blended ? XCB_RENDER_PICT_OP_OVER : XCB_RENDER_PICT_OP_SRC;
    for (const auto &r : where)
        xcb_render_composite(c, operation, source, mask, target,
                             coordinate(r.x() - layer.origin.x()),
                             coordinate(r.y() - layer.origin.y()), 0, 0, coordinate(r.x()),
                             coordinate(r.y()), extent(r.width()), extent(r.height()));
    if (mask != XCB_NONE)
        xcb_render_free_picture(c, mask);
    // Its opacity came along; every pixel of the result is opaque.
    if (layer.raw)
        fillBlack(connection_, target, where, XCB_RENDER_PICT_OP_ADD);
}

} // namespace x11
