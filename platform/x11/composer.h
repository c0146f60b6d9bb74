// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/desktop_model.h"
#include "platform/x11/layers.h"

#include <QRegion>

namespace x11 {

/// Draws single layers into a picture by the render extension. The result is opaque. Requests are
/// sent with the next wait; errors come as events.
class Composer {
public:
    Composer(Connection &connection, DesktopModel &model)
        : connection_(connection), model_(model) {}

    /// Draws what a window's picture shows within `where`, which is part of the layer: over what is
    /// there for a blended layer. Nothing happens when the window has no picture.
    void paintWindow(xcb_render_picture_t target, const Layer &layer, const QRegion &where);

    /// Draws the background that was left on the root window, black where there is none.
    void paintBackground(xcb_render_picture_t target, const QRegion &where);

private:
    void paint(xcb_render_picture_t target, const Layer &layer, xcb_render_picture_t source,
               const QRegion &where);

    Connection &connection_;
    DesktopModel &model_;
};

} // namespace x11
