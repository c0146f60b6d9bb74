// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record/marks/key_marks.h"

#include <QRect>
#include <QSize>

class QPainter;

/// The plate that names keys: small, translucent, at the lower middle of a frame, and within it.

/// The pixels of a frame of this size that the plate covers; smaller in a small frame, and empty in
/// one that has no room for it.
QRect plateBounds(const Plate &plate, QSize frame);

/// Paints it; the painter is in the frame's pixels.
void paintPlate(QPainter &painter, const Plate &plate, QSize frame);
