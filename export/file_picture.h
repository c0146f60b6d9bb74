// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>
#include <QPointer>
#include <QWidget>

class QToolButton;
class QWindow;

/// A picture, as large as it fits, that can be dragged away and played. It knows neither what is
/// dragged nor what plays.
class FilePicture : public QWidget {
    Q_OBJECT

public:
    explicit FilePicture(QWidget *parent = nullptr);

    /// An empty one shows nothing.
    void setPicture(const QImage &picture);
    const QImage &picture() const { return picture_; }
    void setDraggable(bool draggable);
    /// What the button over the picture offers.
    enum class Offer { Nothing, Play, Pause };
    void setOffer(Offer offer);

    /// Whether it is on the screen: neither its tab nor its window is hidden.
    bool isSeen() const { return isSeen_; }
    /// Its place, in pixels of the screen.
    QSize pixels() const { return (QSizeF(size()) * devicePixelRatioF()).toSize(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The pointer has begun to drag it.
    void dragBegan();
    /// The button over it was pressed.
    void offerTaken();
    /// It is on the screen now, or no longer.
    void seenChanged();
    /// Its window has the user's attention again.
    void windowActivated();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void look();

    QImage picture_;
    QToolButton *button_;
    QPointer<QWindow> window_; ///< Whose exposure is watched.
    QPoint pressed_;
    bool draggable_ = false;
    bool isPressed_ = false;
    bool isSeen_ = false;
};
