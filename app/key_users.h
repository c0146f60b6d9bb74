// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

/// Keeps single keys for the controls that use them while they have the focus (Space on a button,
/// arrows among tabs, everything in the menu bar), where the same key is a command of the window.
class KeyUsers : public QObject {
    Q_OBJECT

public:
    /// Watches every such control within `window`, which owns it; made later ones are not.
    explicit KeyUsers(QWidget &window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
