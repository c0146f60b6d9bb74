// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/picture_formats.h"

#include <xcb/damage.h>
#include <xcb/shape.h>

#include <QRect>
#include <QRegion>

#include <optional>
#include <unordered_map>
#include <vector>

namespace x11 {

/// What windows look like: their pixels as the server keeps them for redirected windows, their
/// shapes, and what was drawn in them since it was last asked.
///
/// A window's picture is named only when it is first needed, so that windows that are never shown
/// (our own) cost nothing. A name is good for one size of one mapping: `renew` on either change. It
/// may fail when the window vanishes meanwhile; the window then counts as gone until it is renewed.
class WindowPictures {
public:
    WindowPictures(Connection &connection, const PictureFormats &formats);

    /// Starts to watch a window, if it is not watched yet; the answers come with `settle`.
    void watch(xcb_window_t window);
    /// The window is gone.
    void forget(xcb_window_t window);
    /// The window was mapped or changed its size.
    void renew(xcb_window_t window);
    /// The window is no longer shown: gives its pixels back to the server.
    void drop(xcb_window_t window);

    /// Events and errors of the server. True when they change what is seen.
    bool onShape(const xcb_shape_notify_event_t &event);
    bool onDamage(const xcb_damage_notify_event_t &event);
    bool onError(const xcb_generic_error_t &error); ///< true when some window could not be drawn

    /// Waits for what is still unknown of watched windows; costs nothing when all is known.
    void settle();

    /// Whether the window can be seen at all: it is watched, takes output, and its picture did not
    /// fail. As of the last `settle`.
    bool isShowable(xcb_window_t window) const;
    bool hasAlpha(xcb_window_t window) const;
    bool isShaped(xcb_window_t window) const;
    /// Another number whenever the window shows another picture or another shape; 0 when it is not
    /// watched.
    std::uint64_t generation(xcb_window_t window) const;
    /// What the window covers, in desktop coordinates; `outer` and `border` as in StackedWindow.
    QRegion region(xcb_window_t window, const QRect &outer, int border) const;

    /// The box of all that was drawn and not yet taken, relative to the window's inner corner.
    QRect pendingDamage(xcb_window_t window) const;
    /// Takes it: from here on the server reports new drawing.
    void takeDamage(xcb_window_t window);

    /// A render picture of the window, whose upper left pixel is its border's; 0 when there is
    /// none. Remains ours.
    xcb_render_picture_t picture(xcb_window_t window);

private:
    struct Entry {
        bool known = false; // the answers are here
        bool showable = false;
        bool failed = false;
        PictureFormats::Format format;
        std::optional<QRegion> shape; // relative to the window's inner corner
        std::uint64_t generation = 0;
        xcb_damage_damage_t damage = 0;
        QRect pending;
        xcb_pixmap_t pixmap = 0;
        xcb_render_picture_t picture = 0;
        std::uint32_t naming = 0; // the request that named the pixmap
    };
    struct Question {
        xcb_window_t window = 0;
        std::optional<xcb_get_window_attributes_cookie_t> attributes;
        xcb_shape_query_extents_cookie_t extents{};
        xcb_shape_get_rectangles_cookie_t rectangles{};
    };

    void ask(xcb_window_t window, bool attributesToo);
    void answer(const Question &question);
    void release(Entry &entry);
    Entry *find(xcb_window_t window);
    const Entry *find(xcb_window_t window) const;

    Connection &connection_;
    const PictureFormats &formats_;
    std::unordered_map<xcb_window_t, Entry> entries_;
    std::vector<Question> questions_;
    std::uint64_t generations_ = 0;
};

} // namespace x11
