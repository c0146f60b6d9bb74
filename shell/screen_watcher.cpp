// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/screen_watcher.h"

#include <QGuiApplication>
#include <QScreen>

QRectF lowerLeftFrame(const QScreen *screen) {
    if (!screen)
        return {};
    const QRectF frame = screen->geometry();
    const QScreen *primary = QGuiApplication::primaryScreen();
    const QRectF origin = primary ? primary->geometry() : frame;
    return {frame.x() - origin.x(), origin.bottom() - frame.bottom(), frame.width(),
            frame.height()};
}

ScreenWatcher::ScreenWatcher(QObject *parent) : QObject(parent) {
    for (QScreen *screen : QGuiApplication::screens())
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        watch(screen);
        Q_EMIT changed();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ScreenWatcher::changed);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &ScreenWatcher::changed);
}

void ScreenWatcher::watch(QScreen *screen) {
    connect(screen, &QScreen::geometryChanged, this, &ScreenWatcher::changed);
}
