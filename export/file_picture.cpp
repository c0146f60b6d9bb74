// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_picture.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr QSize usualSize(160, 110);   // points
constexpr QSize smallestSize(160, 40); // points: at the window's smallest size

} // namespace

void FilePicture::setPicture(const QImage &picture) {
    if (picture_.cacheKey() == picture.cacheKey())
        return;
    picture_ = picture;
    update();
}

void FilePicture::setDraggable(bool draggable) {
    draggable_ = draggable;
    if (draggable)
        setCursor(Qt::OpenHandCursor);
    else
        unsetCursor();
}

QSize FilePicture::sizeHint() const { return usualSize; }
QSize FilePicture::minimumSizeHint() const { return smallestSize; }

void FilePicture::paintEvent(QPaintEvent *) {
    if (picture_.isNull())
        return;
    QRectF place(QPointF(), QSizeF(picture_.size()).scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture_);
}

void FilePicture::mousePressEvent(QMouseEvent *event) {
    isPressed_ = draggable_ && event->button() == Qt::LeftButton;
    pressed_ = event->pos();
}

void FilePicture::mouseMoveEvent(QMouseEvent *event) {
    const QPoint way = event->pos() - pressed_;
    if (!isPressed_ || !(event->buttons() & Qt::LeftButton) ||
        way.manhattanLength() < QApplication::startDragDistance())
        return;
    isPressed_ = false;
    Q_EMIT dragBegan();
}
