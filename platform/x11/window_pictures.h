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

/// What windows look like: their shapes, and for those that are asked for one by one the pixels
/// that the server keeps of them, and what was drawn in them since that was last taken.
///
/// A window has pixels of its own only while it is redirected into memory of its own, which costs
/// the server a copy of whatever is drawn in it. When that begins, the server fills in what the
/// screen shows there, windows in front included: those parts are not to be trusted until somebody
/// has drawn them again. A window's picture is named only when it is first needed. A name is good
/// for one size of one mapping: `renew` on either change. It may fail when the window vanishes
/// meanwhile; the window then counts as gone until it is renewed.
class WindowPictures {
public:
    WindowPictures(Connection &connection, const PictureFormats &formats);

    /// Starts to watch a window, if it is not watched yet; the answers come with `settle`.
    void watch(xcb_window_t window);
    /// The window is gone.
    void forget(xcb_window_t window);
    /// The window was mapped or changed its size; from here on what is drawn in it counts. The
    /// server has filled `covered` (desktop coordinates, as `inner`, the window's inner corner)
    /// with what lies in front.
    void renew(xcb_window_t window, const QRegion &covered, const QPoint &inner);

    /// Lets the server keep the window's pixels apart. `covered` as above.
    void redirect(xcb_window_t window, const QRegion &covered, const QPoint &inner);
    bool isRedirected(xcb_window_t window) const;
    /// Gives the window's pixels back to the screen.
    void giveBack(xcb_window_t window);
    /// More of the window turns out to have been covered when it was redirected, if the event that
    /// tells so (its full sequence number) happened before the server did that.
    void distrust(xcb_window_t window, const QRegion &covered, const QPoint &inner,
                  std::uint32_t sequence);
    /// Whether part of the window's picture may show other windows, or the window was redirected
    /// only after what the event tells of (its full sequence number).
    bool isDoubtful(xcb_window_t window, std::uint32_t sequence) const;
    /// Whether the client may have drawn such a part without our being told: what was reported and
    /// not taken is not reported again.
    bool hidesDrawing(xcb_window_t window) const;
    /// What of the window's picture may show other windows; in desktop coordinates.
    QRegion untrusted(xcb_window_t window, const QPoint &inner) const;

    /// Events and errors of the server. True when they change what is seen.
    bool onShape(const xcb_shape_notify_event_t &event);
    bool onDamage(const xcb_damage_notify_event_t &event, std::uint32_t sequence);
    bool onError(const xcb_generic_error_t &error); ///< true when some window could not be drawn

    /// Waits for what is still unknown of watched windows; costs nothing when all is known.
    void settle();

    /// Whether the window can be seen at all: it is watched, takes output, and its picture did not
    /// fail. As of the last `settle`.
    bool isShowable(xcb_window_t window) const;
    bool takesInputOnly(xcb_window_t window) const;
    bool hasAlpha(xcb_window_t window) const;
    bool isShaped(xcb_window_t window) const;
    /// Another number whenever the window shows another picture or another shape; 0 when it is not
    /// watched.
    std::uint64_t generation(xcb_window_t window) const;
    /// What the window covers, in desktop coordinates; `outer` and `border` as in StackedWindow.
    QRegion region(xcb_window_t window, const QRect &outer, int border) const;

    /// What was drawn in a redirected window and not yet taken, relative to its inner corner.
    const QRegion &damage(xcb_window_t window) const;
    /// Takes it: from here on the server tells of new drawing there.
    void takeDamage(xcb_window_t window);

    /// A render picture of the window, whose upper left pixel is its border's; 0 when there is
    /// none. Remains ours.
    xcb_render_picture_t picture(xcb_window_t window);

private:
    struct Entry {
        bool known = false; // the answers are here
        bool showable = false;
        bool failed = false;
        bool inputOnly = false;
        bool redirected = false;
        PictureFormats::Format format;
        std::optional<QRegion> shape; // relative to the window's inner corner
        std::uint64_t generation = 0;
        xcb_damage_damage_t damage = 0;
        QRegion pending; // relative to the inner corner, as the next one
        QRegion untrusted;
        std::uint32_t since = 0; // the request from which on reports of drawing count
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
