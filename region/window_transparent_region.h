// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "region/region_drag.h"
#include "region/region_geometry.h"
#include "shell/coordinates.h"

#include <QBasicTimer>
#include <QImage>
#include <QWidget>

#include <cstdint>
#include <optional>

class QEventLoop;
class RegionChooser;
class RegionPanel;
class View_Transparent_Region;

/// The region selection's overlay: a see-through window over the whole screen of the main window,
/// on which the region is dragged, by its corners, as a whole, or as a new one, typed, or taken
/// from a window. It turns pointer
/// and keys into changes of the desk's squares; it neither draws (see its view) nor decides
/// what the result means (see the region command).
///
/// Where the desktop blends windows, the window is transparent; where it does not, the window is
/// shaped to what is drawn: the screen stays visible and live in both cases. Pointer and keyboard
/// are held while it is open. Everything counts from the screen's frame, wherever the window is.
class Window_Transparent_Region : public QWidget {
    Q_OBJECT

public:
    /// How the modal loop ended: by the user, or because the screen has changed.
    static constexpr int cancelled = 0;
    static constexpr int accepted = 1;
    static constexpr int screenChanged = 2;

    /// Covers `screen` and lays out the squares for the desk's region if one was chosen
    /// before, else for its `size_Region`, which must be set before, centred. The region is
    /// measured on `screen` from then on. Not shown yet. `chooser` is borrowed and outlives it.
    ///
    /// With `still` it is opaque and shows that picture of the whole screen: for a desktop on which
    /// nobody knows what lies beneath a window. It then is a full-screen window by itself, and the
    /// region is measured in points of it.
    Window_Transparent_Region(QScreen &screen, RegionChooser &chooser, QImage still = {});
    ~Window_Transparent_Region() override;

    /// Shows the overlay and turns events until it is accepted, cancelled or ended from outside;
    /// hides it again. Returns one of the codes above. With `picking` the first press picks a
    /// window.
    int runModal(bool picking = false);
    /// Ends the modal loop with `code`; nothing happens outside the loop.
    void stopModalWithCode(int code);

    /// The button is held: something is being dragged.
    bool b_Mouse_Down() const { return b_Mouse_Down_; }
    void setB_Mouse_Down(bool down) { b_Mouse_Down_ = down; }

    /// Index of the square that was pressed last; -1 before the first.
    std::int32_t i_button_index() const { return i_button_index_; }
    void setI_button_index(std::int32_t index) { i_button_index_ = index; }

    /// The window itself.
    QWidget *windowTransparentRegion() { return this; }

    /// The drawing view, which fills the window; owned by it.
    View_Transparent_Region *viewTransparentRegion() const { return viewTransparentRegion_; }

    // Pointer events by their established names; positions in points from the screen's lower left
    // corner.
    void mouseDown(region_geometry::Point pointer);
    void mouseDragged(region_geometry::Point pointer, bool keepsRatio = false);
    void mouseUp();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void awakeFromNib(QScreen &screen);
    void windowDidLoad();
    bool isOnStill() const { return !still_.isNull(); }
    /// The screen as the region is measured on it.
    coordinates::Screen ground() const;
    /// Of the screen in the window.
    QPoint screenInWindow() const;
    /// The pointer in points from the screen's lower left corner.
    region_geometry::Point fromScreenCorner(QPointF inWindow) const;
    region_drag::Screen screenInPoints() const;
    /// Ends the loop, unless the region is too small.
    void accept();
    bool isTooSmall() const;
    void moveCorner(double dx, double dy);
    void chooseCorner(int step);
    /// The squares have changed: shape, drawing and panel follow.
    void squaresChanged();
    void showPanel();
    void makePanel();
    /// Takes a region, as far as the screen has room for it.
    void setRegion(const region_geometry::Region &region);
    /// Gives the region that size, about its middle; in units of the grabs to come.
    void setRecordedSize(QSize size);
    /// A window is picked by the next press, or no longer.
    void setPicking(bool picking);
    void frameWindowAt(region_geometry::Point pointer);
    QRect inFrames(const QRect &pixels) const;
    void showCursor(region_geometry::Point pointer);
    /// Follows a compositing manager that came or went, and takes the pointer and the keyboard when
    /// they are needed and were not to be had before.
    void adaptToDesktop();

    region_geometry::Squares squares() const;
    void setSquares(const region_geometry::Squares &squares);

    RegionChooser &chooser_;
    QImage still_;
    bool b_Mouse_Down_ = false;
    std::int32_t i_button_index_ = -1;
    region_drag::Grip grip_; // while the button is held
    QRect screenFrame_;      // points, upper left origin
    View_Transparent_Region *viewTransparentRegion_;
    RegionPanel *panel_;
    /// The corner that the arrow keys move.
    int cornerInHand_ = region_geometry::lowerRight;
    bool picking_ = false;
    bool picksByKey_ = false;     ///< For as long as it is held.
    std::optional<QRect> picked_; // the window that a press takes, in desktop pixels
    bool blended_ = true;
    bool holdsInput_ = false;
    QBasicTimer desktopWatch_;
    QEventLoop *modalLoop_ = nullptr; // lives in runModal
};
