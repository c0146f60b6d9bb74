// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"
#include "platform/x11/desktop_model.h"
#include "platform/x11/layers.h"

#include <QRegion>

namespace x11 {

/// Draws layers into a picture by the render extension, each visible piece once: opaque layers are
/// copied where they are seen, blended ones laid over what is below them. The result is opaque.
class Composer {
public:
    Composer(Connection &connection, DesktopModel &model)
        : connection_(connection), model_(model) {}

    /// Draws what is seen of `layers` within `changed`, and black where nothing is. The requests
    /// are sent with the next wait; errors come as events.
    void paint(xcb_render_picture_t target, const LayerStack &layers, const QRegion &changed);

private:
    void fill(xcb_render_picture_t target, const QRegion &where, std::uint8_t operation);
    void paintLayer(xcb_render_picture_t target, const Layer &layer, const QRegion &where);

    Connection &connection_;
    DesktopModel &model_;
};

} // namespace x11
