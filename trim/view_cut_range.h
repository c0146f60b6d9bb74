// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The range control on the Cut tab.
class View_Cut_Range : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
};
