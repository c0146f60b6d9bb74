// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/composer.h"
#include "platform/x11/desktop_model.h"
#include "platform/x11/drawn_ahead.h"
#include "platform/x11/layers.h"
#include "platform/x11/surface.h"

#include <QRegion>

#include <chrono>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace x11 {

/// What lies beneath the windows that a picture leaves out: the one part of it in which the screen
/// cannot be shown as it is.
///
/// It starts with the last picture of the screen from before such a window came there, which has
/// all that a desktop shows, and goes on from there: what a window beneath draws is taken from that
/// window's own picture, and where windows beneath come, go or move, the place is composed again
/// from the pictures of those that are there now; nothing else is left of what was there. The
/// windows beneath, and only those, are redirected for it.
class Underlay {
public:
    /// An earlier picture of the whole desktop, and where it is right.
    struct Earlier {
        xcb_render_picture_t picture = 0;
        QRegion valid;
    };

    /// Remembers the screen as it is now.
    Underlay(Connection &connection, DesktopModel &model);

    /// Follows the desktop for a picture of these windows, of which `wanted` is going to be looked
    /// at. `earlier` is the last picture that was handed out, `painted` the last one that `paint`
    /// was called for, with what it shows of the place. Tells where the picture changed, as far as
    /// that is not known from what was drawn on the screen.
    QRegion follow(std::span<const std::uint32_t> numbers, const QRect &wanted,
                   const Earlier &earlier, const Earlier &painted);

    /// Whether what happens between two pictures has to be heeded as it happens, by `keepUp`. A
    /// window's own picture is ahead of a compositing manager's screen until that was drawn again,
    /// and would tear where it meets the screen.
    bool mustKeepUp() const;

    /// Remembers what the windows beneath show, if that is what the screen shows by now.
    void keepUp();

    /// The picture that was handed out last differs there from the one before.
    void pictureChanged(const QRegion &where);

    /// Whether time has come to follow although nothing happened.
    bool isDue();

    /// Where the picture is not the screen as it is shown.
    const QRegion &place() const { return place_; }

    /// Draws the part of it within `where`, which lies in its place and in what was wanted.
    void paint(xcb_render_picture_t target, const QRegion &where);

    /// False when the server had no memory for it.
    bool isReady() const { return memory_ && ground_; }

    /// Nothing of what is remembered holds any more.
    void reset();

private:
    using Clock = std::chrono::steady_clock;

    /// A place that a window left, where a compositing manager may show it a little longer.
    struct Lingering {
        QRegion region;
        Clock::time_point since;
        bool repainted = false;
    };

    void rememberScreen();
    void catchUp(const Earlier &painted);
    QRegion arrange(std::span<const std::uint32_t> numbers, const Earlier &earlier);
    bool takeAsked(std::span<const std::uint32_t> numbers, std::vector<Layer> &layers) const;
    QRegion placeOf(std::span<const Layer> shown, std::span<const std::uint32_t> numbers) const;
    void rememberGround(const LayerStack &all, const Earlier &earlier);
    void linger(std::span<const Layer> shown, std::span<const std::uint32_t> numbers,
                QRegion &place);
    QRegion shadowsLeftBehind(const LayerStack &after) const;
    QRegion takeDamage();
    void redirectBeneath(const QRect &wanted);
    QRegion paintStraight(xcb_render_picture_t target, const QRegion &where);
    void compose(const QRegion &where);
    QRegion groundKnown() const;
    void paintGround(const QRegion &where);

    Connection &connection_;
    DesktopModel &model_;
    Composer composer_;
    QSize size_;
    std::unique_ptr<Surface> memory_; // what the underlay shows
    std::unique_ptr<Surface> ground_; // the screen where no window was

    std::vector<std::uint32_t> numbers_;
    bool asShown_ = true; // all windows in their order, but some
    bool groundAsked_ = true;
    LayerStack layers_; // those that are asked for
    QRegion place_;
    QRegion remembered_; // where `memory_` was right once, and nothing has left since
    QRect wanted_;
    DrawnAhead ahead_;
    QRegion keptUp_;             // what `keepUp` composed and nobody was told of
    Clock::time_point drawn_;    // when something beneath was, the last time
    Clock::time_point followed_; // and when somebody looked
    QRegion dirty_;              // where it has to be composed again
    QRegion behind_;             // where it shows less than what was painted past it
    QRegion groundSeen_;         // where `ground_` holds
    LayerStack all_;             // all that is shown
    std::uint64_t backgroundGeneration_ = 0;
    Clock::time_point groundDoubted_; // until then: whether it changed will show

    QRegion before_; // the place without those that linger
    std::vector<Lingering> lingering_;
    std::unordered_map<std::uint32_t, QRect> leftOut_;
    std::unordered_map<std::uint32_t, Clock::time_point> redirected_; // and until when at least
    Clock::time_point placeMoved_;
};

} // namespace x11
