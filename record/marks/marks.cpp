// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/marks/marks.h"

#include "record/marks/plate_painter.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

void paint(QPainter &painter, const Disc &disc) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(disc.stroke > 0 ? QPen(disc.colour, disc.stroke) : QPen(Qt::NoPen));
    painter.setBrush(disc.stroke > 0 ? QBrush(Qt::NoBrush) : QBrush(disc.colour));
    painter.drawEllipse(disc.centre, disc.radius, disc.radius);
}

/// Rectangles that do not meet and hold all of these.
std::vector<QRect> apart(std::vector<QRect> parts) {
    for (std::size_t i = 0; i < parts.size();) {
        const auto other =
            std::ranges::find_if(parts.begin() + static_cast<std::ptrdiff_t>(i) + 1, parts.end(),
                                 [&](const QRect &part) { return part.intersects(parts[i]); });
        if (other == parts.end()) {
            ++i;
            continue;
        }
        parts[i] |= *other;
        parts.erase(other);
        i = 0; // the larger one may meet those before
    }
    return parts;
}

/// The marks of one frame, each with the pixels that it touches.
struct Shapes {
    std::optional<PointerMark> pointer;
    std::vector<Disc> discs;
    std::optional<Plate> keys;
    QSize frame;

    std::vector<QRect> bounds() const {
        std::vector<QRect> all;
        const auto add = [&](const QRect &part) {
            if (const QRect inside = part.intersected(QRect(QPoint(), frame)); !inside.isEmpty())
                all.push_back(inside);
        };
        if (pointer)
            add(pointer->bounds());
        for (const Disc &disc : discs)
            add(disc.bounds());
        if (keys)
            add(plateBounds(*keys, frame));
        return all;
    }

    /// The pointer over everything else.
    void paint(QPainter &painter) const {
        if (keys)
            paintPlate(painter, *keys, frame);
        for (const Disc &disc : discs)
            ::paint(painter, disc);
        if (pointer)
            painter.drawImage(pointer->corner, pointer->shape);
    }
};

Image drawnOver(const Image &frame, const Shapes &shapes) {
    const std::vector<QRect> parts = apart(shapes.bounds());
    if (parts.empty())
        return frame;
    const QImage whole = frame.toQImage();
    std::vector<ImagePatch> patches;
    for (const QRect &part : parts) {
        QImage pixels = whole.copy(part);
        QPainter painter(&pixels);
        painter.translate(-part.topLeft());
        shapes.paint(painter);
        painter.end();
        patches.push_back({part.topLeft(), std::move(pixels)});
    }
    return frame.withPatches(std::move(patches));
}

} // namespace

Image Marks::over(const Image &frame, const FramePlace &place, const MarksShown &shown) {
    Drawn wanted{.frame = frame.identity(),
                 .place = place,
                 .pointer = {},
                 .shape = 0,
                 .discs = discsOf(shown.clicks, shown.now, shown.hand, place, frame.size()),
                 .keys = shown.keys};
    if (shown.pointer) {
        wanted.pointer = shown.pointer->place - shown.pointer->hotSpot;
        wanted.shape = shown.pointer->shape.cacheKey();
    }
    if (frame.isEmpty() || (!shown.pointer && wanted.discs.empty() && !wanted.keys)) {
        drawn_ = {};
        result_ = {};
        return frame;
    }
    if (wanted != drawn_) {
        drawn_ = std::move(wanted);
        std::optional<PointerMark> pointer;
        if (shown.pointer)
            pointer = pointerMark(*shown.pointer, place);
        result_ = drawnOver(frame, {pointer, drawn_.discs, drawn_.keys, frame.size()});
    }
    return result_;
}
