// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QRegion>

#include <cstdint>
#include <span>
#include <vector>

namespace x11 {

/// What one window contributes to the desktop's picture. Regions are in desktop coordinates
/// (pixels, upper left origin).
struct Layer {
    std::uint32_t window = 0;
    /// What the window covers, its border and its shape considered.
    QRegion region;
    /// Where the upper left pixel of the window's picture lies.
    QPoint origin;
    /// Whether what lies below may shine through.
    bool blended = false;
    /// Whether its picture has an opacity that is not to be looked at.
    bool raw = false;
    /// Another number whenever the window shows through another picture (mapped again, resized).
    std::uint64_t generation = 0;
    /// How opaque it is shown as a whole, 0xffff: fully. Less than that only where it is blended.
    std::uint16_t opacity = 0xffff;
    /// What of `region` is a shadow that the window draws itself.
    QRegion shadow{};

    bool operator==(const Layer &) const = default;
};

/// Layers front to back, and the part of each that is seen: not beneath an opaque one, within the
/// desktop. Pure arithmetic on regions.
class LayerStack {
public:
    LayerStack() = default;
    LayerStack(std::vector<Layer> frontToBack, const QRect &desktop);

    std::span<const Layer> layers() const { return layers_; }
    const QRegion &visible(std::size_t layer) const { return visible_[layer]; }
    /// What no opaque layer covers.
    const QRegion &bare() const { return bare_; }
    const QRect &desktop() const { return desktop_; }

private:
    std::vector<Layer> layers_;
    std::vector<QRegion> visible_;
    QRegion bare_;
    QRect desktop_;
};

/// Where the picture of `after` may differ from the picture of `before`, given that no layer that
/// both hold has changed its content: where some layer came into sight, went out of it, shows
/// another picture, or changed places with one that is blended. Another desktop differs everywhere.
QRegion changedBetween(const LayerStack &before, const LayerStack &after);

} // namespace x11
