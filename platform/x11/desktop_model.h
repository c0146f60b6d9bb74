// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"
#include "platform/x11/background.h"
#include "platform/x11/connection.h"
#include "platform/x11/layers.h"
#include "platform/x11/picture_formats.h"
#include "platform/x11/shown_screen.h"
#include "platform/x11/window_owners.h"
#include "platform/x11/window_pictures.h"
#include "platform/x11/window_stack.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace x11 {

/// The desktop as the server's events tell it: which windows are shown on it, in which order, whose
/// they are, and what was drawn. Made once; from then on `drain` keeps it true, and a desktop on
/// which nothing happens costs no request. Windows that are on the display without being shown
/// (minimised, of another workspace, kept beneath a window manager's guard window) are not here.
class DesktopModel {
public:
    explicit DesktopModel(Connection &connection);

    /// Takes in all that the server has reported meanwhile.
    void drain();

    /// Whether the picture of some list of windows may have changed since this was last asked.
    bool takeChanged();

    /// Whether a window vanished before its picture could be had, since this was last asked; it is
    /// no longer among the layers then.
    bool takeFailures();

    /// The desktop in pixels, all displays, upper left corner 0, 0.
    QRect desktop() const { return desktop_; }

    /// The windows on screen as `WindowServer::listWindows` describes them.
    const std::vector<WindowDescription> &windows();

    /// Likewise as `WindowServer::titledWindows` does.
    std::vector<TitledWindow> titledWindows();

    /// The layers of all windows that are shown, front to back, the background last. Valid until
    /// the next `drain`.
    const std::vector<Layer> &layers();
    /// Whether they may have changed since they were last asked for.
    bool layersChanged() const { return layersChanged_; }

    ShownScreen &screen() { return screen_; }
    Background &background() { return background_; }

    /// Whether somebody composes the screen from the windows' pictures, with effects of their own.
    bool isComposited() const { return compositingManager_; }

    /// Whether the screen was drawn after a window was: while `screen` tells of repaints.
    bool isDrawingShown() const { return drawingShown_; }
    /// How often it was.
    std::uint64_t repaints() const { return repaints_; }

    /// Lets the server keep a window's pixels apart from the screen's, so that they can be had
    /// where it is covered; and gives them back.
    void redirect(std::uint32_t window);
    void giveBack(std::uint32_t window) { pictures_.giveBack(window); }
    bool isRedirected(std::uint32_t window) const { return pictures_.isRedirected(window); }

    /// What was drawn in a redirected window and not yet taken, in desktop coordinates.
    QRegion damage(const Layer &layer) const;
    void takeDamage(const Layer &layer) { pictures_.takeDamage(layer.window); }
    /// Where the picture of a redirected window may show what lay in front of it; likewise.
    QRegion untrusted(const Layer &layer) const;

    /// The picture of a layer, its upper left pixel at the layer's origin; 0 for black, and for a
    /// window that is not redirected.
    xcb_render_picture_t picture(const Layer &layer);

    /// The place to which a desktop lets the window fly when it is minimised; empty when unknown.
    QRect iconPlace(std::uint32_t window) const;
    /// Which of the windows on the display are ours or may not be shared; known after `layers`.
    bool isPrivate(std::uint32_t window) const;

    const PictureFormats &formats() const { return formats_; }

private:
    void readTree();
    void handle(const xcb_generic_event_t &event);
    /// False when the event is none of the core protocol.
    bool handleStructure(const xcb_generic_event_t &event);
    void handleExtension(const xcb_generic_event_t &event);
    void onCreate(const xcb_create_notify_event_t &event);
    void onConfigure(const xcb_configure_notify_event_t &event, std::uint32_t sequence);
    void onMapped(xcb_window_t window, bool mapped, std::uint32_t sequence);
    void distrustBeneath(xcb_window_t window, std::uint32_t sequence);
    void redirectAnew(xcb_window_t window);
    void onReparent(const xcb_reparent_notify_event_t &event);
    void onProperty(const xcb_property_notify_event_t &event);
    void remove(xcb_window_t window);
    void stackChanged();
    void readCompositingManager();
    void readWorkspace();
    bool isGuard(const StackedWindow &window);
    bool isHidden(const StackedWindow &window) const;
    /// A window without its border, which the server draws by itself.
    static QRect innerRect(const StackedWindow &window);
    static QPoint innerCorner(const StackedWindow &window);
    /// What of that lies beneath others.
    QRegion coveredPart(const StackedWindow &window) const;
    QRegion cutToFrame(const StackedWindow &window, QRegion region) const;
    Layer layerOf(const StackedWindow &window) const;
    std::vector<const StackedWindow *> shownFrontToBack();
    QRect visibleFrame(const StackedWindow &window, const WindowOwner &owner) const;
    WindowDescription describe(const StackedWindow &window) const;

    Connection &connection_;
    PictureFormats formats_;
    WindowStack stack_;
    WindowPictures pictures_;
    WindowOwners owners_;
    Background background_;
    ShownScreen screen_;
    QRect desktop_;
    std::optional<std::uint32_t> workspace_;
    std::unordered_map<xcb_window_t, bool> guards_; // input-only windows, and whether one is it
    bool compositingManager_ = false;
    bool changed_ = true;
    bool failures_ = false;
    bool drawingShown_ = true;
    std::uint64_t repaints_ = 0;
    bool listChanged_ = true;
    bool layersChanged_ = true;
    std::vector<WindowDescription> windows_;
    std::vector<Layer> layers_;
};

} // namespace x11
