// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_picture.h"

#include "shell/palette_icon.h"

#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QWindow>

#include <utility>

namespace {

constexpr QSize usualSize(160, 110);   // points
constexpr QSize smallestSize(160, 36); // points: at the window's smallest size
constexpr int buttonSide = 28;         // points
constexpr int buttonInset = 4;

} // namespace

FilePicture::FilePicture(QWidget *parent) : QWidget(parent), button_(new QToolButton(this)) {
    button_->setObjectName(QStringLiteral("btnFilePlay"));
    button_->setFocusPolicy(Qt::StrongFocus);
    button_->setCursor(Qt::ArrowCursor);
    button_->hide();
    connect(button_, &QToolButton::clicked, this, &FilePicture::offerTaken);
}

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

void FilePicture::setOffer(Offer offer) {
    button_->setVisible(offer != Offer::Nothing);
    const bool isPause = offer == Offer::Pause;
    const QString name = isPause ? qtTrId("IDD_PAUSE") : qtTrId("IDD_PLAY");
    button_->setAccessibleName(name);
    button_->setToolTip(name);
    button_->setIcon(paletteIcon(isPause ? QStringLiteral(":/icons/pause.svg")
                                         : QStringLiteral(":/icons/play.svg")));
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

void FilePicture::resizeEvent(QResizeEvent *) {
    QRect place(0, 0, buttonSide, buttonSide);
    place.moveBottomLeft(rect().bottomLeft() + QPoint(buttonInset, -buttonInset));
    button_->setGeometry(place);
}

void FilePicture::showEvent(QShowEvent *) {
    window()->installEventFilter(this);
    window_ = window()->windowHandle();
    if (window_)
        window_->installEventFilter(this);
    look();
}

void FilePicture::hideEvent(QHideEvent *) { look(); }

bool FilePicture::eventFilter(QObject *watched, QEvent *event) {
    if (watched == window_ && event->type() == QEvent::Expose) {
        // The window takes note of it after us.
        QMetaObject::invokeMethod(this, &FilePicture::look, Qt::QueuedConnection);
    } else if (watched == window()) {
        if (event->type() == QEvent::WindowStateChange)
            look();
        else if (event->type() == QEvent::WindowActivate)
            Q_EMIT windowActivated();
    }
    return QWidget::eventFilter(watched, event);
}

void FilePicture::look() {
    const bool isSeen =
        isVisible() && !window()->isMinimized() && (!window_ || window_->isExposed());
    if (std::exchange(isSeen_, isSeen) != isSeen)
        Q_EMIT seenChanged();
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
