// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "region/grab_units.h"

#include <QRect>

#include <optional>

class AppDelegate;
class QScreen;

/// A screen as the conversion into the grab's units sees it.
grab_units::Screen screenOnDesktop(const QScreen &screen);

/// The controller's region in whole units of its latest grab, upper left origin: what is cut out of
/// the grab, and so the size of a frame. Counted from the screen on which the region was chosen,
/// wherever the main window has gone since.
QRect regionInGrab(const AppDelegate &delegate);

/// The same for the grabs to come: the latest one may be of another density, while the region is
/// still being chosen.
QRect regionInFrames(const AppDelegate &delegate);

/// If the next grab is to be halved, because the screen that is recorded (the region's, or else the
/// main window's) has two pixels for a point: the pixel from which on it is halved, 0 or 1 in both
/// directions, so that pixels of one point on that screen become one. None otherwise.
std::optional<QPoint> originOfHalving(const AppDelegate &delegate);

/// The part of the desktop that the next frame needs of a grab, in the desktop's pixels: all of it,
/// none, unless a region is recorded.
std::optional<QRect> partOfGrabInUse(const AppDelegate &delegate);
