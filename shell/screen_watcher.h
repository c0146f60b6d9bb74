// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QScreen;

/// Tells of every change of the screen configuration with one signal: screens added and removed,
/// moved, resized, and another one made primary.
class ScreenWatcher : public QObject {
    Q_OBJECT

public:
    explicit ScreenWatcher(QObject *parent);

Q_SIGNALS:
    void changed();

private:
    void watch(QScreen *screen);
};
