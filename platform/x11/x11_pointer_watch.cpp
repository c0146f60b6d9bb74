// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_pointer_watch.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>
#include <utility>

namespace x11 {

namespace {

// A program may make ever new shapes.
constexpr std::size_t mostShapes = 64;

constexpr std::uint8_t kindMask = 0x7f; // without the bit of events that another client sent

bool isTransparent(std::span<const std::uint32_t> pixels) {
    constexpr std::uint32_t alpha = 0xff000000u;
    return std::ranges::none_of(pixels, [](std::uint32_t pixel) { return (pixel & alpha) != 0; });
}

} // namespace

X11PointerWatch::X11PointerWatch(std::unique_ptr<Connection> connection)
    : connection_(std::move(connection)) {
    xcb_xfixes_select_cursor_input(connection_->get(), connection_->root(),
                                   XCB_XFIXES_CURSOR_NOTIFY_MASK_DISPLAY_CURSOR);
}

std::optional<Pointer> X11PointerWatch::now() {
    // Events that come before an answer have happened before what it says.
    takeEvents();
    const auto query = xcb_query_pointer(connection_->get(), connection_->root());
    std::optional<xcb_xfixes_get_cursor_image_cookie_t> picture;
    if (!shapes_.contains(named_))
        picture = xcb_xfixes_get_cursor_image(connection_->get());
    const auto place = connection_->reply<xcb_query_pointer_reply>(query);
    takeEvents();
    // It has taken another shape since.
    if (!picture && !shapes_.contains(named_))
        picture = xcb_xfixes_get_cursor_image(connection_->get());
    if (picture) {
        if (const auto reply = connection_->reply<xcb_xfixes_get_cursor_image_reply>(*picture))
            take(*reply);
    } else {
        shown_ = named_;
    }
    const auto shape = shapes_.find(shown_);
    if (!place || !place->same_screen || shape == shapes_.end() || shape->second.image.isNull())
        return {};
    return Pointer{.place = {place->root_x, place->root_y},
                   .shape = shape->second.image,
                   .hotSpot = shape->second.hotSpot,
                   .window = place->child};
}

void X11PointerWatch::takeEvents() {
    const int wanted = connection_->extensions().fixesEvent + XCB_XFIXES_CURSOR_NOTIFY;
    while (const Event event = connection_->nextEvent())
        if ((event->response_type & kindMask) == wanted)
            named_ =
                reinterpret_cast<const xcb_xfixes_cursor_notify_event_t &>(*event).cursor_serial;
}

void X11PointerWatch::take(const xcb_xfixes_get_cursor_image_reply_t &reply) {
    ++fetches_;
    shown_ = reply.cursor_serial;
    if (shapes_.contains(shown_))
        return;
    if (shapes_.size() >= mostShapes)
        shapes_.clear();
    const std::span pixels(
        xcb_xfixes_get_cursor_image_cursor_image(&reply),
        static_cast<std::size_t>(xcb_xfixes_get_cursor_image_cursor_image_length(&reply)));
    Shape shape{.image = {}, .hotSpot = {reply.xhot, reply.yhot}};
    // Most programs hide the pointer by a shape in which nothing is to be seen.
    if (!isTransparent(pixels)) {
        shape.image = QImage(reply.width, reply.height, QImage::Format_ARGB32_Premultiplied);
        for (int y = 0; y < shape.image.height(); ++y)
            std::memcpy(shape.image.scanLine(y),
                        pixels.data() + static_cast<std::size_t>(y) * reply.width,
                        std::size_t{4} * reply.width);
    }
    shapes_.emplace(shown_, std::move(shape));
}

} // namespace x11
