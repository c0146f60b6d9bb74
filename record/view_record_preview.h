// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/image_scaler.h"
#include "record/fitting.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QRectF>
#include <QWidget>

class QLabel;
class QWindow;
class QPainter;
class Recorder;

/// The live preview on the Record tab, and the place where a frame comes into being: its draw step
/// settles which picture is shown, and a recording stores that one.
///
/// The draw step and painting are apart. The step runs once for each capture tick, painted or not,
/// and once for each redisplay that the window system asks for (the view is shown, resized or
/// uncovered; causes that come together count once). Painting only puts on the screen what the last
/// step settled: whatever else makes a widget paint (a picture taken of it, a tool tip, a new
/// style, assistive technology) never makes a frame.
class View_Record_Preview : public QWidget {
    Q_OBJECT

public:
    explicit View_Record_Preview(QWidget *parent = nullptr);

    /// The desk, borrowed, whose grabs it shows; without one it stays black.
    void setRecorder(Recorder &recorder);

    /// The draw step: cuts the region out of the latest grab, draws what hands do over it, sets
    /// `imageScreenCaptureFinal`, stores the frame while recording, and asks to be painted.
    void drawFrame();

    /// Shows this sentence in place of the preview; an empty one shows the preview again.
    void showReason(const QString &reason);

    /// Shows a number large over the picture, for a countdown; 0 for none.
    void showNumber(int number);

    /// The part of `image` inside `rectangle`, which is in the image's units with its origin at the
    /// lower left corner. The result has the rectangle's size, in whole pixels; what is outside
    /// the image is transparent. Empty when the image is. `change` is how the part came out of an
    /// earlier one of its size.
    static Image partOfImage(const Image &image, const QRectF &rectangle,
                             Image::Change change = {});

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void paintNumber(QPainter &painter) const;
    void redisplay();
    bool windowIsExposed() const;
    Image cutRegion(const Image &grab, const QRect &region);
    void refreshGrab();
    QPointF corner() const;
    QSize pixelsShown() const;
    QRect placeOnDesktop() const;
    QRegion shownPlaceOf(const QRegion &changed) const;

    Recorder *recorder_ = nullptr;

    // What the last draw step settled.
    int number_ = 0;
    Image shown_;
    FittingFrame frame_;

    // The last region that was cut out, for a grab that did not change since.
    Image cutFrom_;
    QRectF cutRectangle_;
    Image cut_;

    ImageScaler scaler_;
    bool staleBehindOthers_ = false; ///< changes were not painted

    QPointer<QWindow> watchedWindow_;
    /// Runs from a resize on whose exposure has not come yet.
    QElapsedTimer resized_;
    bool redisplayPending_ = false;
    bool showsReason_ = false;
};
