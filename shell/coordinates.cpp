// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/coordinates.h"

#include <QGuiApplication>
#include <QScreen>

namespace coordinates {

Screen screenOnDesktop(const QScreen &screen) {
    const QRect frame = screen.geometry();
    // The toolkit leaves a screen's origin in pixels and scales only what is on the screen.
    return {.originX = static_cast<double>(frame.x()),
            .originY = static_cast<double>(frame.y()),
            .height = static_cast<double>(frame.height()),
            .ratio = screen.devicePixelRatio()};
}

QRectF lowerLeftFrame(const QScreen *screen) {
    if (!screen)
        return {};
    const QRectF frame = screen->geometry();
    const QScreen *primary = QGuiApplication::primaryScreen();
    const QRectF origin = primary ? primary->geometry() : frame;
    return {frame.x() - origin.x(), origin.bottom() - frame.bottom(), frame.width(),
            frame.height()};
}

QRect onDesktop(const QRectF &area, QPointF screenOrigin, double ratio) {
    const QPointF corner = screenOrigin + (area.topLeft() - screenOrigin) * ratio;
    return QRectF(corner, area.size() * ratio).toAlignedRect().adjusted(-1, -1, 1, 1);
}

} // namespace coordinates
