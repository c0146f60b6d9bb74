// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"

#include <xcb/render.h>

#include <unordered_map>

namespace x11 {

/// How the server's pixels are to be read: the render format of each visual, and the one format
/// that we compose in, whatever the root window's own depth is: a byte for each of opacity, red,
/// green and blue in a word of 32 bits, in this machine's byte order.
class PictureFormats {
public:
    struct Format {
        xcb_render_pictformat_t id = 0;
        bool hasAlpha = false;
    };

    /// Depth of the pictures that we compose.
    static constexpr std::uint8_t targetDepth = 32;

    explicit PictureFormats(Connection &connection);

    /// Whether this server can give us pictures in our format.
    bool usable() const { return target_ != 0; }

    xcb_render_pictformat_t target() const { return target_; }

    /// The format of a window of this visual; id 0 when its pixels cannot be read.
    Format of(xcb_visualid_t visual) const;

private:
    std::unordered_map<xcb_visualid_t, Format> byVisual_;
    xcb_render_pictformat_t target_ = 0;
};

} // namespace x11
