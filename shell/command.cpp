// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/command.h"

#include "shell/palette_icon.h"

#include <QAbstractButton>
#include <QAction>

namespace {

QList<QKeySequence> shortcutsOf(const Command &command) {
    return command.shortcut ? QKeySequence::listFromString(QLatin1String(command.shortcut))
                            : QList<QKeySequence>();
}

QString tipOf(const Command &command) {
    if (!command.tip.isEmpty())
        return command.tip;
    const QList<QKeySequence> shortcuts = shortcutsOf(command);
    if (!command.icon || shortcuts.isEmpty())
        return command.text;
    return qtTrId("IDD_TIP_SHORTCUT")
        .arg(command.text, shortcuts.first().toString(QKeySequence::NativeText));
}

void setUpButton(const Command &command, QObject *context, Qt::ConnectionType type) {
    QAbstractButton &button = *command.button;
    if (command.icon) {
        const QString drawing = QStringLiteral(":/icons/%1.svg");
        button.setIcon(paletteIcon(drawing.arg(QLatin1String(command.icon)), command.accent));
        button.setAccessibleName(command.text);
    } else {
        button.setText(command.face.isEmpty() ? command.text : command.face);
        if (!command.face.isEmpty())
            button.setAccessibleName(command.text);
    }
    button.setToolTip(tipOf(command));
    if (!command.checked) {
        QObject::connect(
            &button, &QAbstractButton::clicked, context, [action = command.action] { action(); },
            type);
        return;
    }
    button.setCheckable(true);
    // Assistive technology switches it without a click.
    QObject::connect(
        &button, &QAbstractButton::toggled, context,
        [action = command.action, isOn = command.checked](bool on) {
            if (on != isOn())
                action();
        },
        type);
}

void setUpItem(const Command &command, QObject *context, Qt::ConnectionType type) {
    command.item->setText(command.text);
    command.item->setShortcuts(shortcutsOf(command));
    command.item->setCheckable(command.item->isCheckable() || command.checked);
    QObject::connect(
        command.item, &QAction::triggered, context, [action = command.action] { action(); }, type);
}

} // namespace

void setUp(const std::vector<Command> &commands, QObject *context) {
    for (const Command &command : commands) {
        if (!command.action)
            continue;
        const auto type = command.opensDialog ? Qt::QueuedConnection : Qt::AutoConnection;
        if (command.button)
            setUpButton(command, context, type);
        if (command.item)
            setUpItem(command, context, type);
    }
}

void refresh(const std::vector<Command> &commands) {
    for (const Command &command : commands) {
        if (command.checked && command.button)
            command.button->setChecked(command.checked());
        if (command.checked && command.item)
            command.item->setChecked(command.checked());
        if (!command.enabled)
            continue;
        const bool enabled = command.enabled();
        if (command.button)
            command.button->setEnabled(enabled);
        if (command.item)
            command.item->setEnabled(enabled);
    }
}
