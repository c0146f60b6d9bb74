// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The preview on the Cut tab.
class View_Cut_Preview : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
};
