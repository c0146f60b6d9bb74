// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/layers.h"

#include "platform/image/regions.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace x11 {

LayerStack::LayerStack(std::vector<Layer> frontToBack, const QRect &desktop)
    : layers_(std::move(frontToBack)), bare_(desktop), desktop_(desktop) {
    visible_.reserve(layers_.size());
    for (const auto &layer : layers_) {
        visible_.push_back(bare_.intersected(layer.region));
        if (!layer.blended)
            bare_ -= visible_.back();
    }
}

namespace {

bool looksTheSame(const Layer &a, const Layer &b) {
    return a.blended == b.blended && a.generation == b.generation && a.origin == b.origin &&
           a.opacity == b.opacity;
}

// Among opaque layers an exchange of places changes what is visible of them. A blended one hides
// nothing, so that the exchange shows nowhere but where both are seen.
QRegion exchangedWithBlended(const LayerStack &after, std::span<const std::size_t> before) {
    QRegion changed;
    const auto layers = after.layers();
    for (std::size_t front = 0; front < layers.size(); ++front)
        for (std::size_t back = front + 1; back < layers.size(); ++back)
            if (before[front] > before[back] && (layers[front].blended || layers[back].blended))
                changed = united(changed, after.visible(front).intersected(after.visible(back)));
    return changed;
}

} // namespace

QRegion changedBetween(const LayerStack &before, const LayerStack &after) {
    if (before.desktop() != after.desktop())
        return after.desktop();

    std::unordered_map<std::uint32_t, std::size_t> placeBefore;
    for (std::size_t i = 0; i < before.layers().size(); ++i)
        placeBefore.emplace(before.layers()[i].window, i);

    QRegion changed;
    // Layers without a predecessor count as never exchanged: their whole extent is a change.
    std::vector<std::size_t> places;
    std::vector<bool> stayed(before.layers().size(), false);
    std::size_t latest = 0;
    const auto add = [&changed](const QRegion &part) { changed = united(changed, part); };
    for (std::size_t i = 0; i < after.layers().size(); ++i) {
        const auto found = placeBefore.find(after.layers()[i].window);
        if (found == placeBefore.end()) {
            add(after.visible(i));
            places.push_back(latest);
            continue;
        }
        latest = found->second;
        places.push_back(latest);
        stayed[latest] = true;
        if (looksTheSame(before.layers()[latest], after.layers()[i]))
            add(before.visible(latest).xored(after.visible(i)));
        else
            add(united(before.visible(latest), after.visible(i)));
    }
    for (std::size_t i = 0; i < stayed.size(); ++i)
        if (!stayed[i])
            add(before.visible(i));
    return united(changed, exchangedWithBlended(after, places));
}

} // namespace x11
