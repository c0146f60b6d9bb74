// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/picture_formats.h"

#include <xcb/render.h>
#include <xcb/shm.h>

#include <QImage>
#include <QRegion>
#include <QSize>

#include <memory>
#include <vector>

namespace x11 {

/// How pixels come from the server to us, best first.
enum class TransferMethod {
    SharedPixmap, ///< the server draws into memory that we see
    SharedFetch,  ///< the server copies what changed into memory that we see
    PlainFetch,   ///< what changed comes through the connection
};

/// A picture of the desktop's size that the server draws into and whose pixels we can read.
class SharedPicture {
public:
    /// Takes the first method that the server admits, starting with `best`; null when the server
    /// has no memory for a picture of this size.
    static std::unique_ptr<SharedPicture>
    create(Connection &connection, const PictureFormats &formats, QSize size, TransferMethod best);
    ~SharedPicture();
    SharedPicture(const SharedPicture &) = delete;
    SharedPicture &operator=(const SharedPicture &) = delete;

    TransferMethod method() const { return method_; }
    QSize size() const { return size_; }
    xcb_render_picture_t picture() const { return picture_; }

    /// Waits until all that was asked of the server is drawn, and brings over the pixels in
    /// `changed`. False when they could not be had.
    bool update(const QRegion &changed);

    /// The pixels as of the last `update`, row by row without gaps: 32 bits each, blue in the
    /// lowest byte, the highest one full (opaque). Ours.
    const std::uint32_t *pixels() const;

    /// The same as a picture that shares the memory with the server, and holds it however long it
    /// lives and on whatever thread it ends. Only for shared pixmaps, and nothing may be drawn
    /// while it is held.
    QImage view() const;
    /// Whether some view still lives.
    bool isHeld() const;

private:
    class Memory;

    SharedPicture(Connection &connection, QSize size);
    bool attachMemory();
    bool makePixmap(TransferMethod method);
    bool fetchShared(const QRegion &changed);
    bool fetchPlain(const QRegion &changed);
    void store(const QRect &place, const std::uint32_t *source);

    Connection &connection_;
    std::unique_ptr<Connection> fetching_; // see fetchPlain
    QSize size_;
    TransferMethod method_ = TransferMethod::SharedPixmap;
    xcb_pixmap_t pixmap_ = 0;
    xcb_render_picture_t picture_ = 0;
    xcb_shm_seg_t segment_ = 0;
    std::shared_ptr<const Memory> memory_;
    std::vector<std::uint32_t> fetched_; // what the fetching methods have brought over so far
};

} // namespace x11
