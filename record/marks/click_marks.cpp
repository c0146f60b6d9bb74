// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/marks/click_marks.h"

#include <algorithm>

namespace {

// Pixels of a frame, in which one is a point of the screen as long as that is not of another
// density.
constexpr double widestRadius = 22;
constexpr double strokeOfRadius = 0.16;
constexpr double ringBeginsAt = 0.4; // of the radius
constexpr double heldRadius = 0.45;  // likewise
constexpr double shareOfWidth = 0.05;

constexpr double ringOpacity = 0.95;
constexpr double heldOpacity = 0.55;

QColor colourOf(int button) {
    switch (button) {
    case 1:
        return {0xff, 0x95, 0x00};
    case 2:
        return {0x1f, 0xb1, 0x5a};
    case 3:
        return {0x2f, 0x8c, 0xff};
    default:
        return {0xb4, 0x5c, 0xf0};
    }
}

QColor faded(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

/// The middle of the pixel of the frame that this pixel of the desktop is in.
QPointF middleOf(const FramePlace &place, QPoint pixel) {
    return QPointF(place.inFrame(pixel)) + QPointF(0.5, 0.5);
}

} // namespace

void take(std::vector<Click> &clicks, const Timed<ButtonChange> &change) {
    const ButtonChange &what = change.what;
    if (what.down) {
        clicks.push_back(
            {.button = what.button, .place = what.place, .down = change.time, .up = {}});
        return;
    }
    for (Click &click : clicks)
        if (click.button == what.button && !click.up)
            click.up = change.time;
}

void forgetPast(std::vector<Click> &clicks, MarkTime now) {
    std::erase_if(clicks,
                  [now](const Click &click) { return click.up && now - click.down >= ringLasts; });
}

QRect Disc::bounds() const {
    const double reach = radius + stroke / 2 + 1; // a pixel more for smooth edges
    return QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach).toAlignedRect();
}

std::vector<Disc> discsOf(std::span<const Click> clicks, MarkTime now, std::optional<QPoint> hand,
                          const FramePlace &place, QSize frame) {
    const double largest = std::min(widestRadius, frame.width() * shareOfWidth / 2);
    std::vector<Disc> discs;
    for (const Click &click : clicks) {
        const QColor colour = colourOf(click.button);
        const double age = std::chrono::duration<double>(now - click.down) /
                           std::chrono::duration<double>(ringLasts);
        if (age >= 0 && age < 1) {
            const double stroke = largest * strokeOfRadius;
            const double grown = ringBeginsAt + (1 - ringBeginsAt) * age;
            discs.push_back({.centre = middleOf(place, click.place),
                             .radius = (largest - stroke / 2) * grown,
                             .stroke = stroke,
                             .colour = faded(colour, ringOpacity * (1 - age))});
        }
        if (!click.up)
            discs.push_back({.centre = middleOf(place, hand.value_or(click.place)),
                             .radius = largest * heldRadius,
                             .stroke = 0,
                             .colour = faded(colour, heldOpacity)});
    }
    return discs;
}
