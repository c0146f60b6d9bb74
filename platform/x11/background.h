// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/picture_formats.h"

namespace x11 {

/// The desktop's background: the pixmap that the program which set it left on the root window
/// (`_XROOTPMAP_ID`, by old custom), repeated over the desktop. Without one the background is
/// black: the root window itself cannot be asked, since what it shows is the whole screen, our own
/// windows included.
class Background {
public:
    Background(Connection &connection, const PictureFormats &formats);

    /// The property was set again: the pixmap is looked up again when it is next needed.
    void invalidate();

    /// A repeating render picture, 0 for black. Remains ours.
    xcb_render_picture_t picture();

    /// Another number with every new background.
    std::uint64_t generation() const { return generation_; }

private:
    void lookUp();

    Connection &connection_;
    const PictureFormats &formats_;
    xcb_render_picture_t picture_ = 0;
    bool stale_ = true;
    std::uint64_t generation_ = 1;
};

} // namespace x11
