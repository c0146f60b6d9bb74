// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/picture_formats.h"

#include <xcb/damage.h>

#include <QRegion>

namespace x11 {

/// Tells what is drawn each time anew, in many pieces: a film, or a window that is being dragged.
class RestlessPlaces {
public:
    /// One piece was drawn.
    void onPiece() { ++pieces_; }

    /// All pieces together since the last time. Which part of them can be expected to be drawn
    /// again.
    const QRegion &expectedAfter(const QRegion &drawn);

    /// What was expected the last time.
    const QRegion &expected() const { return expected_; }

    /// Nothing is expected any more.
    void calm();

private:
    QRegion expected_;
    QRegion common_; // to each of the last times,
    int times_ = 0;  // which are so many
    int pieces_ = 0; // since the last one
};

/// The screen as it is shown: the root window with all that lies in it, whoever drew it (windows, a
/// compositing manager, a desktop's shell), and what was drawn there since it was last asked.
class ShownScreen {
public:
    /// Reports of drawing arrive from here on.
    ShownScreen(Connection &connection, const PictureFormats &formats);

    /// Whether it is told each time that somebody, such as a compositing manager, has drawn on it:
    /// at once, and once for what is drawn in one go.
    void tellRepaints(bool tell);

    /// Whether the event tells that.
    bool onRepaint(const xcb_damage_notify_event_t &event);

    /// False when the event is about something else.
    bool onDamage(const xcb_damage_notify_event_t &event);

    /// What was drawn and not yet taken, in desktop coordinates.
    const QRegion &damage() const { return damage_; }

    /// Takes what was drawn within `where`. What is left there is not reported again until it is
    /// taken, so that drawing which nobody wants to see is silent. So is what was drawn each of the
    /// last few times in many pieces: it counts as drawn, unseen, until `pictureChanged` tells that
    /// it was not. A report costs the server as much as a small copy.
    QRegion takeDamage(const QRegion &where);

    /// Whether something counts as drawn although nothing was reported.
    bool isRestless() const { return untaken_; }

    /// The picture differs from the one before only within `where`.
    void pictureChanged(const QRegion &where);

    /// From here on what is drawn there is reported again.
    void takeAll(const QRegion &where);

    /// A render picture of the whole screen; remains ours.
    xcb_render_picture_t picture() const { return picture_; }

private:
    void subtract(const QRegion &region);

    Connection &connection_;
    xcb_render_picture_t picture_;
    xcb_damage_damage_t object_;
    xcb_damage_damage_t repaints_ = 0;
    QRegion damage_;
    RestlessPlaces restless_;
    bool untaken_ = false; // what is expected was left, the last time
};

} // namespace x11
