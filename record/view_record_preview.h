// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The live preview on the Record tab.
class View_Record_Preview : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
};
