// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/window_transparent_region.h"

#include "app/app_delegate.h"
#include "platform/compositing.h"
#include "region/controller_squares.h"
#include "region/region_in_grab.h"
#include "region/region_tip.h"
#include "region/view_transparent_region.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QMoveEvent>
#include <QScreen>
#include <QTimerEvent>
#include <QWindow>

#include <utility>

namespace {

using region_geometry::Place;
using region_geometry::Point;
using region_geometry::Squares;

constexpr double smallStep = 1.0;  // points
constexpr double largeStep = 10.0; // points, with Shift

/// Often enough for the eye; one question to the server each time.
constexpr int desktopWatchInterval = 200; // milliseconds

Squares squares() { return controller_squares::read(appDelegate()->region); }

QString cornerName(const Place &place) {
    if (place.lower)
        return place.left ? qtTrId("IDD_REGION_LOWER_LEFT") : qtTrId("IDD_REGION_LOWER_RIGHT");
    return place.left ? qtTrId("IDD_REGION_UPPER_LEFT") : qtTrId("IDD_REGION_UPPER_RIGHT");
}

} // namespace

Window_Transparent_Region::Window_Transparent_Region(QScreen &screen)
    : QWidget(appDelegate()->shell.window(),
              Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint),
      screenFrame_(screen.geometry()),
      viewTransparentRegion_(new View_Transparent_Region(this, screenFrame_)),
      tip_(new RegionTip(this)) {
    setObjectName(QStringLiteral("Window_Transparent_Region"));
    viewTransparentRegion_->setObjectName(QStringLiteral("viewTransparentRegion"));
    setWindowTitle(qtTrId("IDD_REGION_OVERLAY"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::ApplicationModal);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    viewTransparentRegion_->setMouseTracking(true);
    awakeFromNib(screen);
    windowDidLoad();
}

Window_Transparent_Region::~Window_Transparent_Region() = default;

void Window_Transparent_Region::awakeFromNib(QScreen &screen) {
    // Past the window manager: it would keep the window clear of the desktop's panels or, for a
    // window that asks for the full screen, take the panels away from what is to be framed.
    setScreen(&screen);
    setGeometry(screenFrame_);
    // A visual with alpha, on which nothing is drawn but what the view draws.
    setAttribute(Qt::WA_TranslucentBackground);
    appDelegate()->region.setScreenOfRegion(screenOnDesktop(screen));
}

void Window_Transparent_Region::windowDidLoad() {
    setB_Mouse_Down(false);
    setI_button_index(-1);
    AppDelegate &controller = *appDelegate();
    const QSizeF start = controller.region.size_Region();
    const QSizeF whole = controller.shell.size_Screen();
    controller_squares::write(controller.region,
                              region_geometry::initialSquares(start.width(), start.height(),
                                                              whole.width(), whole.height()));
}

int Window_Transparent_Region::runModal() {
    QEventLoop loop;
    modalLoop_ = &loop;
    blended_ = desktopBlendsWindows();
    viewTransparentRegion_->setShaped(!blended_);
    squaresChanged();
    show();
    raise();
    activateWindow();
    setFocus();
    showTip();
    adaptToDesktop();
    desktopWatch_.start(desktopWatchInterval, this);
    const int code = loop.exec(QEventLoop::DialogExec);
    modalLoop_ = nullptr;
    desktopWatch_.stop();
    tip_->hide();
    hide(); // The window server takes back pointer and keyboard from a window that is hidden.
    return code;
}

void Window_Transparent_Region::stopModalWithCode(int code) {
    if (modalLoop_)
        modalLoop_->exit(code);
}

void Window_Transparent_Region::accept() {
    // The last change may not have been drawn yet.
    View_Transparent_Region::storeRegion();
    stopModalWithCode(accepted);
}

// Pointer -----------------------------------------------------------------------------------------

void Window_Transparent_Region::mouseDown(Point pointer) {
    const std::optional<int> hit = region_geometry::squareAt(squares(), pointer);
    if (!hit)
        return;
    setI_button_index(*hit);
    if (*hit == region_geometry::middle) {
        accept();
        return;
    }
    setB_Mouse_Down(true);
    cornerInHand_ = *hit;
    showTip();
}

void Window_Transparent_Region::mouseDragged(Point pointer) {
    if (!b_Mouse_Down())
        return;
    Squares moved = squares();
    region_geometry::drag(moved, i_button_index(), pointer);
    controller_squares::write(appDelegate()->region, moved);
    squaresChanged();
}

void Window_Transparent_Region::mouseUp() { setB_Mouse_Down(false); }

Point Window_Transparent_Region::fromScreenCorner(QPointF inWindow) const {
    // The toolkit's position in the widget and on the desktop both lose their fractions.
    const QPointF inScreen = inWindow + geometry().topLeft() - screenFrame_.topLeft();
    return {inScreen.x(), screenFrame_.height() - inScreen.y()};
}

void Window_Transparent_Region::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton)
        mouseDown(fromScreenCorner(event->scenePosition()));
}

void Window_Transparent_Region::mouseMoveEvent(QMouseEvent *event) {
    const Point pointer = fromScreenCorner(event->scenePosition());
    if (event->buttons() & Qt::LeftButton)
        mouseDragged(pointer);
    showCursor(pointer);
    showTip(); // It may stand where the pointer goes now.
}

void Window_Transparent_Region::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton)
        mouseUp();
}

void Window_Transparent_Region::showCursor(Point pointer) {
    const Squares now = squares();
    const std::optional<int> hit =
        b_Mouse_Down() ? i_button_index() : region_geometry::squareAt(now, pointer);
    Qt::CursorShape shape = Qt::ArrowCursor;
    if (hit == region_geometry::middle) {
        shape = Qt::PointingHandCursor;
    } else if (hit) {
        const Place place = region_geometry::placeOf(now, *hit);
        shape = place.left == place.lower ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
    }
    setCursor(shape);
}

// Keyboard ----------------------------------------------------------------------------------------

void Window_Transparent_Region::keyPressEvent(QKeyEvent *event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? largeStep : smallStep;
    switch (event->key()) {
    case Qt::Key_Escape:
        stopModalWithCode(cancelled);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        accept();
        break;
    case Qt::Key_Left:
        moveCorner(-step, 0);
        break;
    case Qt::Key_Right:
        moveCorner(step, 0);
        break;
    case Qt::Key_Up:
        moveCorner(0, step);
        break;
    case Qt::Key_Down:
        moveCorner(0, -step);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool Window_Transparent_Region::focusNextPrevChild(bool next) {
    chooseCorner(next ? 1 : -1);
    return true;
}

void Window_Transparent_Region::moveCorner(double dx, double dy) {
    Squares moved = squares();
    const Point &corner = moved[static_cast<std::size_t>(cornerInHand_)];
    region_geometry::drag(moved, cornerInHand_, {corner.x + dx, corner.y + dy});
    controller_squares::write(appDelegate()->region, moved);
    squaresChanged();
}

void Window_Transparent_Region::chooseCorner(int step) {
    cornerInHand_ = region_geometry::cornerAfter(cornerInHand_, step);
    showTip();
}

// Window ------------------------------------------------------------------------------------------

void Window_Transparent_Region::squaresChanged() {
    QRegion shape;
    if (!blended_) {
        const Squares now = squares();
        shape = viewTransparentRegion_->pieces(now, region_geometry::boundingRegion(now)).shape();
    }
    shapeWindow(winId(), shape);
    viewTransparentRegion_->update();
    if (isVisible())
        showTip();
}

void Window_Transparent_Region::showTip() {
    View_Transparent_Region::storeRegion();
    const QRect recorded = regionInGrab(*appDelegate());
    const Squares now = squares();
    const Point &corner = now[static_cast<std::size_t>(cornerInHand_)];
    const QPointF marked(corner.x + region_geometry::squareInset,
                         screenFrame_.height() - corner.y - region_geometry::squareInset);
    const QString text = qtTrId("IDD_REGION_TIP")
                             .arg(cornerName(region_geometry::placeOf(now, cornerInHand_)))
                             .arg(recorded.width())
                             .arg(recorded.height())
                             .arg(recorded.x())
                             .arg(recorded.y());
    tip_->showNear(marked.toPoint() + screenFrame_.topLeft(), QCursor::pos(), screenFrame_, text);
    setAccessibleDescription(text);
}

void Window_Transparent_Region::adaptToDesktop() {
    if (!isActiveWindow())
        activateWindow();
    const bool blended = desktopBlendsWindows();
    if (blended != std::exchange(blended_, blended)) {
        viewTransparentRegion_->setShaped(!blended);
        squaresChanged();
    }
    // A panel that the compositing manager draws lies above every window, and a shaped window has
    // no presses outside its shape. Another client may hold them for a moment (a menu that is
    // closing).
    if (holdsInput_ || !windowHandle())
        return;
    const bool pointer = windowHandle()->setMouseGrabEnabled(true);
    const bool keyboard = windowHandle()->setKeyboardGrabEnabled(true);
    holdsInput_ = pointer && keyboard;
}

void Window_Transparent_Region::timerEvent(QTimerEvent *event) {
    if (event->timerId() == desktopWatch_.timerId())
        adaptToDesktop();
    else
        QWidget::timerEvent(event);
}

void Window_Transparent_Region::resizeEvent(QResizeEvent *) {
    viewTransparentRegion_->setGeometry(rect());
}

void Window_Transparent_Region::moveEvent(QMoveEvent *) { squaresChanged(); }

void Window_Transparent_Region::closeEvent(QCloseEvent *event) {
    event->ignore();
    stopModalWithCode(cancelled);
}
