// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/marks/marks.h"

#include <QPainter>

#include <utility>
#include <vector>

namespace {

Image drawnOver(const Image &frame, const FramePlace &place, const MarksShown &shown) {
    const PointerMark mark = pointerMark(*shown.pointer, place);
    const QRect part = mark.bounds().intersected(QRect(QPoint(), frame.size()));
    if (part.isEmpty())
        return frame;
    QImage pixels = frame.toQImage().copy(part);
    QPainter painter(&pixels);
    painter.drawImage(mark.corner - part.topLeft(), mark.shape);
    painter.end();
    return frame.withPatches({{part.topLeft(), std::move(pixels)}});
}

} // namespace

Image Marks::over(const Image &frame, const FramePlace &place, const MarksShown &shown) {
    if (frame.isEmpty() || !shown.pointer) {
        drawn_ = {};
        result_ = {};
        return frame;
    }
    const Drawn wanted{.frame = frame.identity(),
                       .place = place,
                       .pointer = shown.pointer->place - shown.pointer->hotSpot,
                       .shape = shown.pointer->shape.cacheKey()};
    if (wanted != drawn_) {
        drawn_ = wanted;
        result_ = drawnOver(frame, place, shown);
    }
    return result_;
}
