// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/screen_watcher.h"

#include <QGuiApplication>
#include <QScreen>

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
