// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"
#include "platform/x11/background.h"
#include "platform/x11/connection.h"
#include "platform/x11/layers.h"
#include "platform/x11/picture_formats.h"
#include "platform/x11/window_owners.h"
#include "platform/x11/window_pictures.h"
#include "platform/x11/window_stack.h"

#include <span>
#include <vector>

namespace x11 {

/// The desktop as the server's events tell it: which windows are on it, in which order, whose they
/// are, and what was drawn in them. Made once; from then on `drain` keeps it true, and a desktop on
/// which nothing happens costs no request. It redirects the root window's children into memory of
/// their own for as long as it lives.
class DesktopModel {
public:
    explicit DesktopModel(Connection &connection);

    /// Takes in all that the server has told meanwhile.
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

    /// The layers of these windows, front to back; unknown numbers are left out.
    std::vector<Layer> layers(std::span<const std::uint32_t> numbers);

    /// What was drawn in visible parts of these layers and not yet taken; takes it.
    QRegion takeDamage(const LayerStack &layers);

    /// The picture of a layer, its upper left pixel at the layer's origin; 0 for black.
    xcb_render_picture_t picture(const Layer &layer);

    const PictureFormats &formats() const { return formats_; }

private:
    void readTree();
    void handle(const xcb_generic_event_t &event);
    /// False when the event is none of the core protocol.
    bool handleStructure(const xcb_generic_event_t &event);
    void handleExtension(const xcb_generic_event_t &event);
    void onCreate(const xcb_create_notify_event_t &event);
    void onConfigure(const xcb_configure_notify_event_t &event);
    void onMapped(xcb_window_t window, bool mapped);
    void onReparent(const xcb_reparent_notify_event_t &event);
    void onProperty(const xcb_property_notify_event_t &event);
    void remove(xcb_window_t window);
    void stackChanged();
    void readCompositingManager();
    std::vector<const StackedWindow *> shownFrontToBack();
    WindowDescription describe(const StackedWindow &window) const;

    Connection &connection_;
    PictureFormats formats_;
    WindowStack stack_;
    WindowPictures pictures_;
    WindowOwners owners_;
    Background background_;
    QRect desktop_;
    bool compositingManager_ = false;
    bool changed_ = true;
    bool failures_ = false;
    bool listChanged_ = true;
    std::vector<WindowDescription> windows_;
};

} // namespace x11
