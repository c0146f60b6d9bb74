// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/picture_formats.h"

#include <QRegion>
#include <QSize>

#include <memory>

namespace x11 {

/// A picture in the server's own memory, in the format that we compose in; nobody reads its pixels
/// over here. Its content is undefined until it is drawn.
class Surface {
public:
    /// Null when the server has no memory for a picture of this size.
    static std::unique_ptr<Surface> create(Connection &connection, const PictureFormats &formats,
                                           QSize size);
    ~Surface();
    Surface(const Surface &) = delete;
    Surface &operator=(const Surface &) = delete;

    xcb_render_picture_t picture() const { return picture_; }

private:
    explicit Surface(Connection &connection) : connection_(connection) {}

    Connection &connection_;
    xcb_pixmap_t pixmap_ = 0;
    xcb_render_picture_t picture_ = 0;
};

/// Copies `where` (pixels) from one picture to the same place of another.
void copyRegion(Connection &connection, xcb_render_picture_t from, xcb_render_picture_t to,
                const QRegion &where);

/// Fills `where` with opaque black by a render operation (XCB_RENDER_PICT_OP_...).
void fillBlack(Connection &connection, xcb_render_picture_t to, const QRegion &where,
               std::uint8_t operation);

} // namespace x11
