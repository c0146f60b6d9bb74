// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/marks/pointer_mark.h"

namespace {

/// The mean of the four pixels whose upper left one this is; outside there is nothing.
QRgb meanAt(const QImage &shape, int x, int y) {
    constexpr unsigned count = 4;
    unsigned alpha = count / 2, red = alpha, green = alpha, blue = alpha; // for rounding
    for (const QPoint &at :
         {QPoint(x, y), QPoint(x + 1, y), QPoint(x, y + 1), QPoint(x + 1, y + 1)}) {
        if (!shape.rect().contains(at))
            continue;
        const QRgb pixel = reinterpret_cast<const QRgb *>(shape.constScanLine(at.y()))[at.x()];
        alpha += static_cast<unsigned>(qAlpha(pixel));
        red += static_cast<unsigned>(qRed(pixel));
        green += static_cast<unsigned>(qGreen(pixel));
        blue += static_cast<unsigned>(qBlue(pixel));
    }
    return qRgba(static_cast<int>(red / count), static_cast<int>(green / count),
                 static_cast<int>(blue / count), static_cast<int>(alpha / count));
}

} // namespace

PointerMark pointerMark(const Pointer &pointer, const FramePlace &place) {
    const QPoint onDesktop = pointer.place - pointer.hotSpot;
    if (place.density == 1)
        return {place.inFrame(onDesktop), pointer.shape};
    const QPoint corner = place.inFrame(onDesktop);
    const QPoint farCorner =
        place.inFrame(onDesktop + QPoint(pointer.shape.width() - 1, pointer.shape.height() - 1));
    // Where the first four pixels begin: beyond the shape's edge for half of all places.
    const QPoint start = corner * 2 + place.origin - onDesktop;
    QImage halved(QRect(corner, farCorner).size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < halved.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(halved.scanLine(y));
        for (int x = 0; x < halved.width(); ++x)
            row[x] = meanAt(pointer.shape, start.x() + 2 * x, start.y() + 2 * y);
    }
    return {corner, halved};
}
