// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>

/// A picture, as large as it fits, that can be dragged away. It does not know what is dragged.
class FilePicture : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// An empty one shows nothing.
    void setPicture(const QImage &picture);
    void setDraggable(bool draggable);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The pointer has begun to drag it.
    void dragBegan();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QImage picture_;
    QPoint pressed_;
    bool draggable_ = false;
    bool isPressed_ = false;
};
