// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection.h"

#include <QByteArray>
#include <QImage>
#include <QRect>

#include <cstdint>
#include <set>
#include <vector>

/// A client of the X server that tests steer: it makes windows and does to them what programs do.
/// Coordinates are pixels, those of windows relative to the desktop's upper left corner.
class XClient {
public:
    struct Spec {
        QRect place{0, 0, 100, 80}; ///< inside the border
        std::uint16_t border = 0;
        bool alpha = false; ///< a window of depth 32
        bool overrideRedirect = false;
        bool inputOnly = false;
    };

    /// Connects to what DISPLAY names; the process ends when it cannot.
    XClient();

    xcb_connection_t *get() const { return connection_->get(); }
    xcb_window_t root() const { return connection_->root(); }
    QRect desktop();
    /// Bits of a pixel of the screen.
    int depth() const { return connection_->screen().root_depth; }
    /// To any size up to the one that the display started with.
    void resizeDesktop(const QSize &size);

    /// A window that is not mapped yet; its background is grey and half transparent.
    xcb_window_t create(const Spec &spec);
    /// The same, mapped and with a pattern in it.
    xcb_window_t show(const Spec &spec, std::uint32_t seed = 1);
    void destroy(xcb_window_t window);
    void map(xcb_window_t window);
    void unmap(xcb_window_t window);
    /// Place of the outer corner and inner size, as the protocol has it.
    void moveResize(xcb_window_t window, const QRect &place);
    void setBorder(xcb_window_t window, std::uint16_t width, std::uint32_t color);
    /// `sibling` 0: above or below all.
    void restack(xcb_window_t window, xcb_stack_mode_t mode, xcb_window_t sibling = 0);
    void circulate(bool raiseLowest);
    /// No rectangles: the window is no longer shaped.
    void setShape(xcb_window_t window, const std::vector<QRect> &rectangles);
    /// A pixmap of the desktop's depth, with anything in it.
    xcb_pixmap_t pixmap(const QSize &size);
    /// What drawing takes; no exposures come of copies with it.
    xcb_gcontext_t contextFor(xcb_drawable_t drawable);
    void fill(xcb_drawable_t drawable, const QRect &where, std::uint32_t argb);
    /// Copies the upper left part of that size, of one depth in both.
    void copy(xcb_drawable_t from, xcb_drawable_t to, const QSize &size);
    /// Rectangles of many colours, so that no two places look alike.
    void drawPattern(xcb_window_t window, const QRect &where, std::uint32_t seed);
    void setProperty(xcb_window_t window, const char *name, xcb_atom_t type,
                     std::vector<std::uint32_t> value);
    void setText(xcb_window_t window, xcb_atom_t property, const QByteArray &text);
    /// Instance and class, each ended by a zero (ICCCM 4.1.2.5).
    void setClass(xcb_window_t window, const QByteArray &both) {
        setText(window, XCB_ATOM_WM_CLASS, both);
    }
    void reparent(xcb_window_t window, xcb_window_t parent);
    /// Sets a background as desktops do, on the screen and for those who ask; or takes it away.
    void setBackgroundPixmap(bool present);
    /// Owns or disowns the selection that tells of a compositing manager.
    void actAsCompositingManager(bool active);
    bool compositingManagerRuns();
    bool windowManagerRuns();
    xcb_atom_t atom(const char *name);

    /// Returns when the server has done all of the above.
    void sync() { connection_->roundTrip(); }

    /// Lets the server keep all windows' pixels apart, as a compositing manager does.
    void keepWindowsApart();
    /// Every window draws itself anew, wherever it is covered, as before.
    void redraw();
    /// The screen as it is shown.
    QImage screen();

    /// The desktop composed pixel by pixel from the pictures of all windows on it but `without`.
    /// Slow and obvious; needs somebody to have redirected the windows.
    QImage reference(const std::set<xcb_window_t> &without = {});

private:
    xcb_visualid_t alphaVisual() const;
    void redraw(xcb_window_t window);
    void redrawWithChildren(xcb_window_t window, const QSize &size);

    std::unique_ptr<x11::Connection> connection_;
    xcb_colormap_t alphaColors_ = 0;
    xcb_window_t selectionOwner_ = 0;
};
