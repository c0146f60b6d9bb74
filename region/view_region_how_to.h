// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The how-to dialog's picture: a small screen with a region on it, drawn as the overlay draws it,
/// and what each kind of square does.
class View_Region_How_To : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int widthOfRegion() const;
};
