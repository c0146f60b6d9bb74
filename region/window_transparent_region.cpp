// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/window_transparent_region.h"

#include "platform/compositing.h"
#include "region/controller_squares.h"
#include "region/panel_place.h"
#include "region/region_chooser.h"
#include "region/region_panel.h"
#include "region/view_transparent_region.h"
#include "shell/coordinates.h"
#include "shell/surroundings.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QMoveEvent>
#include <QPainter>
#include <QScreen>
#include <QTimerEvent>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

using region_drag::Held;
using region_geometry::Place;
using region_geometry::Point;
using region_geometry::Region;
using region_geometry::Squares;

constexpr double smallStep = 1.0;  // points
constexpr double largeStep = 10.0; // points, with Shift

/// The encoders refuse less.
constexpr int smallestSide = 2; // pixels of a frame

/// Often enough for the eye; one question to the server each time.
constexpr int desktopWatchInterval = 200; // milliseconds

QString cornerName(const Place &place) {
    if (place.lower)
        return place.left ? qtTrId("IDD_REGION_LOWER_LEFT") : qtTrId("IDD_REGION_LOWER_RIGHT");
    return place.left ? qtTrId("IDD_REGION_UPPER_LEFT") : qtTrId("IDD_REGION_UPPER_RIGHT");
}

} // namespace

Window_Transparent_Region::Window_Transparent_Region(QScreen &screen, RegionChooser &chooser,
                                                     QImage still)
    // On a still it stands by itself: the main window is out of sight, and so would be its child.
    : QWidget(still.isNull() ? chooser.surroundings().shell.window() : nullptr,
              still.isNull() ? Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint
                             : Qt::Window | Qt::FramelessWindowHint),
      chooser_(chooser), still_(std::move(still)),
      screenFrame_(still_.isNull() ? screen.geometry() : QRect(QPoint(), screen.size())),
      viewTransparentRegion_(new View_Transparent_Region(this, screenFrame_, chooser)),
      panel_(new RegionPanel(this, screenFrame_.width())) {
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
    makePanel();
    if (isOnStill())
        panel_->hidePicking();
}

Window_Transparent_Region::~Window_Transparent_Region() = default;

Squares Window_Transparent_Region::squares() const {
    return controller_squares::read(chooser_.region);
}

void Window_Transparent_Region::setSquares(const Squares &squares) {
    controller_squares::write(chooser_.region, squares);
}

void Window_Transparent_Region::awakeFromNib(QScreen &screen) {
    // Past the window manager: it would keep the window clear of the desktop's panels or, for a
    // window that asks for the full screen, take the panels away from what is to be framed.
    setScreen(&screen);
    if (isOnStill())
        return setGeometry(screen.geometry());
    setGeometry(screenFrame_);
    // A visual with alpha, on which nothing is drawn but what the view draws.
    setAttribute(Qt::WA_TranslucentBackground);
}

void Window_Transparent_Region::windowDidLoad() {
    setB_Mouse_Down(false);
    setI_button_index(-1);
    RegionFields &fields = chooser_.region;
    const QSizeF size = fields.size_Region();
    Region start = region_geometry::boundingRegion(region_geometry::initialSquares(
        size.width(), size.height(), screenFrame_.width(), screenFrame_.height()));
    // The last region, wherever the window has gone since: it may have to fit another screen.
    if (fields.screenOfRegion()) {
        const QRect last = fields.rect_Screen_Region().toRect();
        start = {last.x(), last.y(), last.width(), last.height()};
    }
    controller_squares::write(fields,
                              region_drag::squaresOf(region_drag::within(start, screenInPoints())));
    fields.setScreenOfRegion(ground());
}

coordinates::Screen Window_Transparent_Region::ground() const {
    if (!isOnStill())
        return coordinates::screenOnDesktop(*screen());
    return {.height = static_cast<double>(screenFrame_.height()),
            .ratio = static_cast<double>(still_.width()) / screenFrame_.width()};
}

QPoint Window_Transparent_Region::screenInWindow() const {
    // Where a window is that fills the screen is known, whatever the toolkit says of it.
    return isOnStill() ? QPoint() : screenFrame_.topLeft() - geometry().topLeft();
}

int Window_Transparent_Region::runModal(bool picking) {
    QEventLoop loop;
    modalLoop_ = &loop;
    blended_ = desktopBlendsWindows();
    viewTransparentRegion_->setShaped(!blended_);
    squaresChanged();
    if (isOnStill())
        showFullScreen();
    else
        show();
    raise();
    activateWindow();
    setFocus();
    showPanel();
    adaptToDesktop();
    setPicking(picking);
    desktopWatch_.start(desktopWatchInterval, this);
    const int code = loop.exec(QEventLoop::DialogExec);
    modalLoop_ = nullptr;
    desktopWatch_.stop();
    hide(); // The window server takes back pointer and keyboard from a window that is hidden.
    return code;
}

void Window_Transparent_Region::stopModalWithCode(int code) {
    if (modalLoop_)
        modalLoop_->exit(code);
}

void Window_Transparent_Region::accept() {
    // The last change may not have been drawn yet.
    chooser_.storeRegion();
    if (isTooSmall())
        return showPanel(); // It says why.
    stopModalWithCode(accepted);
}

bool Window_Transparent_Region::isTooSmall() const {
    const QRect recorded = chooser_.place().inFrames;
    const Region region = region_geometry::boundingRegion(squares());
    return region.width == 0 || region.height == 0 || recorded.width() < smallestSide ||
           recorded.height() < smallestSide;
}

// Pointer -----------------------------------------------------------------------------------------

void Window_Transparent_Region::mouseDown(Point pointer) {
    const std::optional<int> hit = region_geometry::squareAt(squares(), pointer);
    if (hit)
        setI_button_index(*hit);
    if (hit == region_geometry::middle)
        return accept();
    setB_Mouse_Down(true);
    grip_ = region_drag::gripAt(squares(), hit, pointer);
    if (hit)
        cornerInHand_ = *hit;
    showPanel();
}

void Window_Transparent_Region::mouseDragged(Point pointer, bool keepsRatio) {
    if (!b_Mouse_Down())
        return;
    const Squares moved = region_drag::dragged(grip_, pointer, screenInPoints(), keepsRatio);
    if (grip_.held == Held::NewRegion && grip_.drawing)
        cornerInHand_ = grip_.corner;
    setSquares(moved);
    squaresChanged();
}

region_drag::Screen Window_Transparent_Region::screenInPoints() const {
    return {.width = static_cast<double>(screenFrame_.width()),
            .height = static_cast<double>(screenFrame_.height()),
            .pixel = 1.0 / (isOnStill() ? ground().ratio : devicePixelRatioF())};
}

void Window_Transparent_Region::mouseUp() { setB_Mouse_Down(false); }

Point Window_Transparent_Region::fromScreenCorner(QPointF inWindow) const {
    // The toolkit's position in the widget and on the desktop both lose their fractions.
    const QPointF inScreen = inWindow - screenInWindow();
    return {inScreen.x(), coordinates::flipped(inScreen.y(), 0, screenFrame_.height())};
}

void Window_Transparent_Region::mousePressEvent(QMouseEvent *event) {
    const Point pointer = fromScreenCorner(event->scenePosition());
    // While the pointer is held, presses on other screens arrive here too.
    const bool onScreen = pointer.x >= 0 && pointer.x <= screenFrame_.width() && pointer.y >= 0 &&
                          pointer.y <= screenFrame_.height();
    if (event->button() != Qt::LeftButton || !onScreen)
        return;
    setFocus(); // the keys are the region's again
    if (!picking_)
        return mouseDown(pointer);
    frameWindowAt(pointer);
    if (picked_)
        setRegion(chooser_.regionFor(inFrames(*picked_)));
    setPicking(false);
}

void Window_Transparent_Region::mouseMoveEvent(QMouseEvent *event) {
    const Point pointer = fromScreenCorner(event->scenePosition());
    if (picking_)
        return frameWindowAt(pointer);
    if (event->buttons() & Qt::LeftButton)
        mouseDragged(pointer, event->modifiers().testFlag(Qt::ShiftModifier));
    showCursor(pointer);
}

void Window_Transparent_Region::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton)
        mouseUp();
}

void Window_Transparent_Region::showCursor(Point pointer) {
    const Squares now = squares();
    const std::optional<int> hit = region_geometry::squareAt(now, pointer);
    if (!b_Mouse_Down() && hit == region_geometry::middle)
        return setCursor(Qt::PointingHandCursor);
    const region_drag::Grip grip = b_Mouse_Down() ? grip_ : region_drag::gripAt(now, hit, pointer);
    Qt::CursorShape shape = grip.held == Held::Whole ? Qt::SizeAllCursor : Qt::CrossCursor;
    if (grip.held == Held::Corner) {
        const Place place = region_geometry::placeOf(now, grip.corner);
        shape = place.left == place.lower ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
    }
    setCursor(shape);
}

// Keyboard ----------------------------------------------------------------------------------------

void Window_Transparent_Region::keyPressEvent(QKeyEvent *event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? largeStep : smallStep;
    switch (event->key()) {
    case Qt::Key_Escape:
        // One step back.
        if (picking_)
            setPicking(false);
        else if (panel_->isTyping())
            setFocus();
        else
            stopModalWithCode(cancelled);
        break;
    case Qt::Key_W:
        if (!event->isAutoRepeat())
            setPicking(picksByKey_ = true);
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

void Window_Transparent_Region::keyReleaseEvent(QKeyEvent *event) {
    // The shortcut that opens the overlay ends with a W, too.
    if (event->key() == Qt::Key_W && !event->isAutoRepeat() && std::exchange(picksByKey_, false))
        setPicking(false);
    else
        QWidget::keyReleaseEvent(event);
}

bool Window_Transparent_Region::focusNextPrevChild(bool next) {
    if (!hasFocus())
        return QWidget::focusNextPrevChild(next);
    chooseCorner(next ? 1 : -1);
    return true;
}

void Window_Transparent_Region::moveCorner(double dx, double dy) {
    Squares moved = squares();
    const Point mark = region_drag::markOf(moved[static_cast<std::size_t>(cornerInHand_)]);
    const Point to = region_drag::clamped({mark.x + dx, mark.y + dy}, screenInPoints());
    region_geometry::drag(
        moved, cornerInHand_,
        {to.x - region_geometry::squareInset, to.y - region_geometry::squareInset});
    setSquares(moved);
    squaresChanged();
}

void Window_Transparent_Region::chooseCorner(int step) {
    cornerInHand_ = region_geometry::cornerAfter(cornerInHand_, step);
    showPanel();
}

// Window ------------------------------------------------------------------------------------------

void Window_Transparent_Region::squaresChanged() {
    showPanel();
    QRegion shape;
    if (!blended_) {
        const Squares now = squares();
        shape = viewTransparentRegion_->pieces(now, region_geometry::boundingRegion(now)).shape();
        const QRectF panel = panel_->geometry();
        const double ratio = devicePixelRatioF();
        shape += QRectF(panel.topLeft() * ratio, panel.size() * ratio).toAlignedRect();
    }
    shapeWindow(winId(), shape);
    viewTransparentRegion_->update();
}

void Window_Transparent_Region::showPanel() {
    chooser_.storeRegion();
    const QRect recorded = chooser_.place().inFrames;
    const Squares now = squares();
    QString problem;
    if (isTooSmall())
        problem = qtTrId("IDD_REGION_TOO_SMALL").arg(smallestSide);
    panel_->showRegion(recorded, problem);
    const Region region = region_geometry::boundingRegion(now);
    const QPoint corner = screenInWindow();
    const int top =
        static_cast<int>(coordinates::flipped(region.y, region.height, screenFrame_.height()));
    const auto [x, y] =
        panel_place::choose({corner.x() + region.x, corner.y() + top, region.width, region.height},
                            {corner.x(), corner.y(), screenFrame_.width(), screenFrame_.height()},
                            panel_->width(), panel_->height());
    panel_->move(x, y);
    panel_->raise();
    QString text = qtTrId("IDD_REGION_TIP")
                       .arg(cornerName(region_geometry::placeOf(now, cornerInHand_)))
                       .arg(recorded.width())
                       .arg(recorded.height())
                       .arg(recorded.x())
                       .arg(recorded.y());
    text += QLatin1Char('\n') + panel_->hint();
    setAccessibleDescription(text);
}

void Window_Transparent_Region::makePanel() {
    connect(panel_, &RegionPanel::wanted, this,
            [this](const QRect &recorded) { setRegion(chooser_.regionFor(recorded)); });
    connect(panel_, &RegionPanel::wantedSize, this, &Window_Transparent_Region::setRecordedSize);
    connect(panel_, &RegionPanel::wantedSquare, this, [this] {
        const QSize now = chooser_.place().inFrames.size();
        const int side = std::min(now.width(), now.height());
        setRecordedSize({side, side});
    });
    connect(panel_, &RegionPanel::wantedLast, this,
            [this] { setRegion(RegionChooser::lastRegion().value_or(Region())); });
    connect(panel_, &RegionPanel::pickingWanted, this, &Window_Transparent_Region::setPicking);
    connect(panel_, &RegionPanel::accepted, this, &Window_Transparent_Region::accept);
    connect(panel_, &RegionPanel::listClosed, this, [this] {
        // It has given back what it had taken from the overlay.
        holdsInput_ = false;
        if (modalLoop_)
            adaptToDesktop();
    });
}

void Window_Transparent_Region::setRegion(const Region &region) {
    setSquares(region_drag::squaresOf(region_drag::within(region, screenInPoints())));
    cornerInHand_ = region_geometry::lowerRight;
    squaresChanged();
}

void Window_Transparent_Region::setRecordedSize(QSize size) {
    QRect recorded(QPoint(), size);
    recorded.moveCenter(chooser_.place().inFrames.center());
    setRegion(chooser_.regionFor(recorded));
}

void Window_Transparent_Region::setPicking(bool picking) {
    if (isOnStill())
        return;
    if (picking == picking_)
        return;
    picking_ = picking;
    panel_->setPicking(picking);
    picked_.reset();
    viewTransparentRegion_->setPicking(picking, {});
    if (picking)
        frameWindowAt(fromScreenCorner(mapFromGlobal(QPointF(QCursor::pos()))));
    setCursor(Qt::CrossCursor);
    squaresChanged();
}

/// Desktop pixels in units of the grabs to come.
QRect Window_Transparent_Region::inFrames(const QRect &pixels) const {
    const std::optional<QPoint> halvedFrom = chooser_.place().halvedFrom;
    if (!halvedFrom)
        return pixels;
    const QRect from = pixels.translated(-*halvedFrom);
    const QPoint corner((from.x() + 1) / 2, (from.y() + 1) / 2);
    return {corner, QPoint((from.right() + 1) / 2 - 1, (from.bottom() + 1) / 2 - 1)};
}

void Window_Transparent_Region::frameWindowAt(Point pointer) {
    const double ratio = devicePixelRatioF();
    const QPointF inScreen(pointer.x, coordinates::flipped(pointer.y, 0, screenFrame_.height()));
    const QPointF onDesktop = QPointF(screenFrame_.topLeft()) + inScreen * ratio;
    const std::vector<TitledWindow> windows = chooser_.windows();
    const auto found = std::ranges::find_if(windows, [&onDesktop](const TitledWindow &window) {
        return QRectF(window.frame).contains(onDesktop);
    });
    picked_ = found == windows.end() ? std::optional<QRect>() : found->frame;
    std::optional<QRect> shown;
    if (picked_) {
        const QRect onScreen = picked_->translated(-screenFrame_.topLeft());
        shown = QRectF(QPointF(onScreen.topLeft()) / ratio, QSizeF(onScreen.size()) / ratio)
                    .toRect()
                    .intersected(QRect(QPoint(), screenFrame_.size()));
    }
    viewTransparentRegion_->setPicking(picking_, shown);
    squaresChanged();
}

void Window_Transparent_Region::adaptToDesktop() {
    if (!isActiveWindow())
        activateWindow();
    if (isOnStill())
        return;
    const bool blended = desktopBlendsWindows();
    if (blended != std::exchange(blended_, blended)) {
        viewTransparentRegion_->setShaped(!blended);
        squaresChanged();
    }
    // A panel that the compositing manager draws is above every window, and a shaped window has
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

void Window_Transparent_Region::paintEvent(QPaintEvent *event) {
    if (!isOnStill())
        return QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), still_);
}

void Window_Transparent_Region::resizeEvent(QResizeEvent *) {
    viewTransparentRegion_->setGeometry(rect());
}

void Window_Transparent_Region::moveEvent(QMoveEvent *) { squaresChanged(); }

void Window_Transparent_Region::closeEvent(QCloseEvent *event) {
    event->ignore();
    stopModalWithCode(cancelled);
}
