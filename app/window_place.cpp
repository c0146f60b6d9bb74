// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/window_place.h"

#include "region/region_text.h"
#include "shell/settings.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>

namespace {

// What is remembered, by its name in the settings: as four numbers, the frame's upper left corner
// on the desktop and the size without it, in points.
constexpr auto placeChoice = "Window";
constexpr auto maximizedChoice = "WindowMaximized";

} // namespace

void window_place::recall(QMainWindow &window) {
    const auto last = region_text::regionOf(settings::readChoice(placeChoice));
    if (!last)
        return;
    const QRect place(last->x, last->y, last->width, last->height);
    const QList<QScreen *> screens = QGuiApplication::screens();
    // Its title bar can be reached, however much of the rest is on another screen.
    const QPoint title(place.center().x(), place.top());
    const auto holds = [&title](const QScreen *screen) {
        return screen->availableGeometry().contains(title);
    };
    const auto found = std::ranges::find_if(screens, holds);
    if (found != screens.end()) {
        window.move(place.topLeft());
        window.resize(place.size().boundedTo((*found)->availableVirtualSize()));
    } else {
        window.resize(place.size().boundedTo(window.screen()->availableSize()));
    }
    if (settings::readChoice(maximizedChoice) == QLatin1String("1"))
        window.setWindowState(Qt::WindowMaximized);
}

void window_place::remember(const QMainWindow &window) {
    const bool maximized = window.isMaximized();
    settings::writeChoice(maximizedChoice, maximized ? QStringLiteral("1") : QStringLiteral("0"));
    if (maximized || window.isMinimized())
        return; // the place before it stands
    const QPoint corner = window.frameGeometry().topLeft();
    settings::writeChoice(placeChoice, region_text::textOf({corner.x(), corner.y(), window.width(),
                                                            window.height()}));
}
