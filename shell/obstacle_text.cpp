// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/obstacle_text.h"

QString obstacleText(std::optional<Obstacle> obstacle) {
    if (!obstacle)
        return {};
    switch (*obstacle) {
    case Obstacle::NoDisplay:
        return qtTrId("IDD_REASON_NO_DISPLAY");
    case Obstacle::NoComposite:
        return qtTrId("IDD_REASON_NO_COMPOSITE");
    case Obstacle::MissingExtension:
        return qtTrId("IDD_REASON_MISSING_EXTENSION");
    case Obstacle::PictureFormat:
        return qtTrId("IDD_REASON_PICTURE_FORMAT");
    case Obstacle::WaylandSession:
        return qtTrId("IDD_REASON_WAYLAND");
    case Obstacle::NoPortal:
        return qtTrId("IDD_REASON_NO_PORTAL");
    }
    return {};
}
