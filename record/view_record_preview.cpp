// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/view_record_preview.h"

#include "record/grab_geometry.h"
#include "record/recorder.h"
#include "record/window_list.h"
#include "region/region_chooser.h"
#include "shell/coordinates.h"
#include "shell/line_breaks.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr double numberShare = 0.6; // a countdown's disc of the view, its number of the disc
constexpr int discOpacity = 170;    // of 255: it is read on any picture
constexpr double discEdge = 2;      // points: on black parts only it is seen

/// How long after a resize the window system's exposure of it may come, in milliseconds: a resize
/// that the program asked for makes its way through the window manager first.
constexpr qint64 resizeToExposure = 200;

/// Stands in the event queue behind the window system's own events, so that a resize and the
/// exposure that it brings are over when it comes up.
QEvent::Type redisplayEvent() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

bool sameFrame(const FittingFrame &one, const FittingFrame &other) {
    return one.x == other.x && one.y == other.y && one.width == other.width &&
           one.height == other.height;
}

} // namespace

View_Record_Preview::View_Record_Preview(QWidget *parent) : QWidget(parent) {
    // Every pixel is painted by the view itself: nothing beneath needs to be.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void View_Record_Preview::setRecorder(Recorder &recorder) {
    recorder_ = &recorder;
    connect(recorder_, &Recorder::ticked, this, &View_Record_Preview::drawFrame);
}

void View_Record_Preview::drawFrame() {
    redisplayPending_ = false;
    if (!recorder_)
        return;
    const RegionChooser &chooser = recorder_->chooser();
    const FittingFrame before = frame_;
    const Image previous = shown_;
    refreshGrab();
    const Image &grab = recorder_->capture.imgScreenCapture();
    const QRect region = chooser.place().inGrab;
    shown_ = chooser.isPartRecorded()
                 ? recorder_->withMarks(cutRegion(grab, region), region.topLeft())
                 : recorder_->withMarks(grab, {});
    recorder_->capture.setImageScreenCaptureFinal(shown_);
    frame_ = bestFitFrame(shown_.width(), shown_.height(), width(), height());
    recorder_->updateCaptureMode();
    recorder_->storeFrame();
    const auto changes = shown_.changesSince(previous);
    const bool whole = staleBehindOthers_ || !changes || !sameFrame(frame_, before);
    if (!whole && changes->isEmpty())
        return;
    // Behind other windows nobody sees it: it is painted once it comes into sight.
    staleBehindOthers_ = isCovered(recorder_->capture.windowsOnScreen, placeOnDesktop());
    if (staleBehindOthers_)
        return;
    if (whole)
        update();
    else
        update(shownPlaceOf(*changes));
}

/// The region may have moved since the grab, or the whole screen been chosen.
void View_Record_Preview::refreshGrab() {
    const std::optional<QRect> grabbed = recorder_->capture.grabbedPart();
    const std::optional<QRect> needed = recorder_->chooser().place().partInUse;
    if (grabbed && (!needed || !grabbed->contains(*needed)))
        recorder_->createMultiWindowShot(recorder_->capture.arrayWindowsMinusHarrowlens);
}

Image View_Record_Preview::cutRegion(const Image &grab, const QRect &region) {
    const QRectF rectangle(region.x(),
                           coordinates::flipped(region.y(), region.height(), grab.height()),
                           region.width(), region.height());
    // The same part of the same picture stays the same picture: it is then written only once.
    const auto changes =
        cutRectangle_ == rectangle ? grab.changesSince(cutFrom_) : std::optional<QRegion>();
    cutFrom_ = grab;
    cutRectangle_ = rectangle;
    if (!changes) {
        cut_ = partOfImage(grab, rectangle);
    } else if (changes->intersects(region)) {
        cut_ =
            partOfImage(grab, rectangle, {cut_.identity(), changes->translated(-region.topLeft())});
    }
    return cut_;
}

Image View_Record_Preview::partOfImage(const Image &image, const QRectF &rectangle,
                                       Image::Change change) {
    if (image.isEmpty())
        return {};
    const PixelRectangle part = pixelsToCut(rectangle.x(), rectangle.y(), rectangle.width(),
                                            rectangle.height(), image.height());
    if (part.width == 0)
        return {};
    const QRect pixels(part.left, part.top, part.width, part.height);
    if (QRect(QPoint(), image.size()).contains(pixels))
        return image.cut(pixels, std::move(change));
    QImage canvas(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(-pixels.topLeft(), image.toQImage());
    painter.end();
    return Image::fromQImage(std::move(canvas), std::move(change));
}

void View_Record_Preview::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
    if (!shown_.isEmpty() && !showsReason_)
        painter.drawImage(corner(), scaler_.scaled(shown_, pixelsShown(), devicePixelRatioF(),
                                                   ImageScaler::Care::Quick));
    if (number_ > 0)
        paintNumber(painter);
}

void View_Record_Preview::paintNumber(QPainter &painter) const {
    const double side = std::min(width(), height()) * numberShare;
    QRectF disc(0, 0, side, side);
    disc.moveCenter(QRectF(rect()).center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, discEdge));
    painter.setBrush(QColor(0, 0, 0, discOpacity));
    painter.drawEllipse(disc);
    QFont large = font();
    large.setBold(true);
    large.setPixelSize(std::max(1, static_cast<int>(side * numberShare)));
    painter.setFont(large);
    painter.setPen(Qt::white);
    painter.drawText(disc, Qt::AlignCenter, QString::number(number_));
}

void View_Record_Preview::showNumber(int number) {
    number_ = number;
    update();
}

QRect View_Record_Preview::placeOnDesktop() const {
    return coordinates::onDesktop(QRectF(mapToGlobal(QPointF()), QSizeF(size())),
                                  screen()->geometry().topLeft(), devicePixelRatioF());
}

QSize View_Record_Preview::pixelsShown() const {
    return (QSizeF(frame_.width, frame_.height) * devicePixelRatioF()).toSize().expandedTo({1, 1});
}

QPointF View_Record_Preview::corner() const {
    return ImageScaler::onGrid({frame_.x, coordinates::flipped(frame_.y, frame_.height, height())},
                               devicePixelRatioF());
}

/// Where in the view the shown picture changes with these of its pixels.
QRegion View_Record_Preview::shownPlaceOf(const QRegion &changed) const {
    const double ratio = devicePixelRatioF();
    QRegion place;
    for (const QRect &pixels : ImageScaler::affected(changed, shown_.size(), pixelsShown()))
        place += QRectF(corner() + QPointF(pixels.topLeft()) / ratio, QSizeF(pixels.size()) / ratio)
                     .toAlignedRect();
    return place;
}

void View_Record_Preview::redisplay() {
    // A window that is not on the screen yet will be exposed, which then is the one redisplay.
    if (redisplayPending_ || !isVisible() || !windowIsExposed())
        return;
    redisplayPending_ = true;
    QCoreApplication::postEvent(this, new QEvent(redisplayEvent()));
}

bool View_Record_Preview::event(QEvent *event) {
    if (event->type() != redisplayEvent())
        return QWidget::event(event);
    // A tick in between has drawn already.
    if (redisplayPending_)
        drawFrame();
    return true;
}

bool View_Record_Preview::windowIsExposed() const {
    return watchedWindow_ && watchedWindow_->isExposed();
}

void View_Record_Preview::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (windowIsExposed())
        resized_.start();
    redisplay();
}

void View_Record_Preview::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    QWindow *handle = window()->windowHandle();
    if (handle && handle != watchedWindow_) {
        handle->installEventFilter(this);
        watchedWindow_ = handle;
    }
    redisplay();
}

bool View_Record_Preview::eventFilter(QObject *watched, QEvent *event) {
    // The window system says that part of the window lost its content.
    if (watched == watchedWindow_ && event->type() == QEvent::Expose && windowIsExposed()) {
        const bool ofResize = resized_.isValid() && resized_.elapsed() < resizeToExposure;
        resized_.invalidate();
        if (!ofResize)
            redisplay();
    }
    return QWidget::eventFilter(watched, event);
}

void View_Record_Preview::showReason(const QString &reason) {
    showsReason_ = !reason.isEmpty();
    setAccessibleDescription(reason);
    auto *label = findChild<QLabel *>(QStringLiteral("labelReason"));
    label->setText(line_breaks::atPhrases(reason));
    label->setVisible(showsReason_);
    // The preview is black in every theme.
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, Qt::white);
    label->setPalette(palette);
    update();
}
