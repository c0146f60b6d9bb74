// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pointer_watch.h"
#include "platform/x11/connection.h"

#include <xcb/xfixes.h>

#include <memory>
#include <unordered_map>

namespace x11 {

/// The pointer of an X11 display, over a connection of its own.
///
/// The server tells when the pointer takes another shape (XFixes 5, section 7), and each shape is
/// fetched once. It does not tell of the single pictures of an animated one, and names that one by
/// a number that none of them has: then, and until it has named one, the picture is fetched each
/// time.
class X11PointerWatch : public PointerWatch {
public:
    /// The connection's server has XFixes.
    explicit X11PointerWatch(std::unique_ptr<Connection> connection);

    std::optional<Pointer> now() override;

    /// How often a shape was fetched.
    int fetches() const { return fetches_; }

private:
    struct Shape {
        QImage image;
        QPoint hotSpot;
    };

    void takeEvents();
    void take(const xcb_xfixes_get_cursor_image_reply_t &reply);

    std::unique_ptr<Connection> connection_;
    std::unordered_map<std::uint32_t, Shape> shapes_; // by serial number
    std::uint32_t named_ = 0; // what the server said last; 0 before it said anything
    std::uint32_t shown_ = 0; // what was fetched last
    int fetches_ = 0;
};

} // namespace x11
