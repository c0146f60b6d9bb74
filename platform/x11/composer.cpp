// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/composer.h"

#include <vector>

namespace x11 {

namespace {

std::int16_t coordinate(int pixels) { return static_cast<std::int16_t>(pixels); }
std::uint16_t extent(int pixels) { return static_cast<std::uint16_t>(pixels); }

} // namespace

void Composer::paint(xcb_render_picture_t target, const LayerStack &layers,
                     const QRegion &changed) {
    fill(target, layers.bare().intersected(changed), XCB_RENDER_PICT_OP_SRC);
    for (std::size_t i = layers.layers().size(); i-- > 0;)
        paintLayer(target, layers.layers()[i], layers.visible(i).intersected(changed));
}

void Composer::fill(xcb_render_picture_t target, const QRegion &where, std::uint8_t operation) {
    std::vector<xcb_rectangle_t> rectangles;
    for (const auto &r : where)
        rectangles.push_back(
            {coordinate(r.x()), coordinate(r.y()), extent(r.width()), extent(r.height())});
    if (rectangles.empty())
        return;
    const xcb_render_color_t opaqueBlack{0, 0, 0, 0xffff};
    xcb_render_fill_rectangles(connection_.get(), operation, target, opaqueBlack,
                               static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
}

void Composer::paintLayer(xcb_render_picture_t target, const Layer &layer, const QRegion &where) {
    if (where.isEmpty())
        return;
    const auto source = model_.picture(layer);
    if (source == 0) {
        fill(target, where, XCB_RENDER_PICT_OP_SRC);
        return;
    }
    const std::uint8_t operation = layer.blended ? XCB_RENDER_PICT_OP_OVER : XCB_RENDER_PICT_OP_SRC;
    for (const auto &r : where)
        xcb_render_composite(connection_.get(), operation, source, XCB_NONE, target,
                             coordinate(r.x() - layer.origin.x()),
                             coordinate(r.y() - layer.origin.y()), 0, 0, coordinate(r.x()),
                             coordinate(r.y()), extent(r.width()), extent(r.height()));
    // Its opacity came along; every pixel of the result is opaque.
    if (layer.raw)
        fill(target, where, XCB_RENDER_PICT_OP_ADD);
}

} // namespace x11
