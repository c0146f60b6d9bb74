// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/key_users.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMenuBar>
#include <QTabBar>

namespace {

bool uses(const QObject &control, const QKeyEvent &event) {
    if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier))
        return false;
    if (qobject_cast<const QAbstractButton *>(&control))
        return event.key() == Qt::Key_Space;
    if (qobject_cast<const QTabBar *>(&control))
        return event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
    return true;
}

} // namespace

KeyUsers::KeyUsers(QWidget &window) : QObject(&window) {
    const auto watch = [this](const auto &controls) {
        for (QObject *control : controls)
            control->installEventFilter(this);
    };
    watch(window.findChildren<QAbstractButton *>());
    watch(window.findChildren<QTabBar *>());
    watch(window.findChildren<QMenuBar *>());
}

bool KeyUsers::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride &&
        uses(*watched, *static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
