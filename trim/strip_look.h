// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPalette>
#include <QRectF>

#include <vector>

class QPainter;

/// How the parts of the strip look: drawn with the palette's accent, and each with a light and a
/// dark edge, so that it is seen on any picture and in any palette. Rectangles are points from the
/// upper left corner of the strip.
namespace strip_look {

/// The two tones of every edge; 12 : 1 between them.
inline const QColor lightEdge(240, 240, 240);
inline const QColor darkEdge(40, 40, 40);

/// Heights in points. The knob stands above the film, the grips reach beyond it on either side.
inline constexpr int knobHeight = 11;
inline constexpr int filmTop = 13;
inline constexpr int filmHeight = 40;
inline constexpr int gripOverlap = 3;
inline constexpr int stripHeight = filmTop + filmHeight + gripOverlap + 1; // the grip's outer edge
/// Width of the knob in points.
inline constexpr int knobWidth = 13;

/// The pictures beside one another, each in the middle of its share of `film`; where there is none
/// a blank place.
void drawFilm(QPainter &painter, const QRectF &film, const std::vector<QImage> &pictures,
              const QPalette &palette);
/// What is left out at either end.
void drawLeftOut(QPainter &painter, const QRectF &part);
/// What was deleted in the middle.
void drawDeleted(QPainter &painter, const QRectF &part);
void drawSelection(QPainter &painter, const QRectF &part, const QPalette &palette);
/// The frame around what is kept.
void drawKept(QPainter &painter, const QRectF &part, const QPalette &palette);
void drawGrip(QPainter &painter, const QRectF &grip, const QPalette &palette);
/// The line from the knob down to the end of `line`, and the knob.
void drawPlayhead(QPainter &painter, const QRectF &line, const QRectF &knob);

} // namespace strip_look
