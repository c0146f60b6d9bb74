// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/regions.h"
#include "platform/x11/desktop_model.h"

#include <algorithm>
#include <string_view>
#include <utility>

// Which of the windows on the display are shown, and what of each.

namespace x11 {

// Some window managers keep minimised windows, and those of other workspaces, mapped beneath a
// window that takes their input and covers the screen. It bears its name for just this purpose.
bool DesktopModel::isGuard(const StackedWindow &window) {
    if (!window.mapped || !window.overrideRedirect || !pictures_.takesInputOnly(window.number))
        return false;
    const auto [known, isNew] = guards_.try_emplace(window.number, false);
    if (isNew) {
        static constexpr std::string_view name = "mutter guard window";
        const auto property = connection_.reply<xcb_get_property_reply>(
            xcb_get_property(connection_.get(), 0, window.number, XCB_ATOM_WM_NAME,
                             XCB_GET_PROPERTY_TYPE_ANY, 0, 16));
        known->second =
            property && property->format == 8 &&
            std::string_view(static_cast<const char *>(xcb_get_property_value(property.get())),
                             property->value_len) == name;
    }
    return known->second;
}

bool DesktopModel::isHidden(const StackedWindow &window) const {
    const auto *owner = owners_.find(window.number);
    return owner && (owner->minimised ||
                     (workspace_ && owner->workspace && *owner->workspace != *workspace_));
}

std::vector<const StackedWindow *> DesktopModel::shownFrontToBack() {
    pictures_.settle();
    std::vector<const StackedWindow *> shown;
    std::vector<std::uint32_t> numbers;
    const auto stack = stack_.bottomToTop();
    for (auto at = stack.rbegin(); at != stack.rend(); ++at) {
        const StackedWindow &window = *at;
        if (isGuard(window))
            break;
        if (!window.mapped || !pictures_.isShowable(window.number) ||
            !window.outer.intersects(desktop_))
            continue;
        shown.push_back(&window);
        numbers.push_back(window.number);
    }
    owners_.settle(numbers);
    std::erase_if(shown, [this](const auto *window) { return isHidden(*window); });
    return shown;
}

QRect DesktopModel::innerRect(const StackedWindow &window) {
    return window.outer.adjusted(window.border, window.border, -window.border, -window.border);
}

QPoint DesktopModel::innerCorner(const StackedWindow &window) {
    return window.outer.topLeft() + QPoint(window.border, window.border);
}

QRegion DesktopModel::coveredPart(const StackedWindow &window) const {
    const QRect inner = innerRect(window);
    QRegion covered;
    const auto stack = stack_.bottomToTop();
    for (auto at = stack.rbegin(); at != stack.rend(); ++at) {
        const StackedWindow &above = *at;
        if (above.number == window.number)
            break;
        if (above.mapped && above.outer.intersects(inner))
            covered = united(
                covered,
                pictures_.region(above.number, above.outer, above.border).intersected(inner));
    }
    return covered;
}

// The rim of a frame that only takes the pointer is transparent on a screen that is composed, and
// nothing (black) in the frame's picture.
QRegion DesktopModel::cutToFrame(const StackedWindow &window, QRegion region) const {
    const auto *owner = owners_.find(window.number);
    if (!compositingManager_ || !owner || !owner->frame || owner->client.isEmpty())
        return region;
    return region.intersected(
        owner->client.marginsAdded(*owner->frame).translated(innerCorner(window)));
}

Layer DesktopModel::layerOf(const StackedWindow &window) const {
    const auto *owner = owners_.find(window.number);
    const bool hasAlpha = pictures_.hasAlpha(window.number);
    Layer layer{
        .window = window.number,
        .region = cutToFrame(window, pictures_.region(window.number, window.outer, window.border)),
        .origin = window.outer.topLeft(),
        .blended = compositingManager_ && hasAlpha,
        .raw = !compositingManager_ && hasAlpha,
        .generation = pictures_.generation(window.number)};
    if (!owner || !compositingManager_)
        return layer;
    layer.opacity = owner->opacity;
    layer.blended = layer.blended || owner->opacity < 0xffff;
    if (!owner->shadow.isNull())
        layer.shadow = layer.region.subtracted(
            (owner->client.isEmpty() ? QRect(QPoint(), window.outer.size()) : owner->client)
                .marginsRemoved(owner->shadow)
                .translated(innerCorner(window)));
    return layer;
}

const std::vector<Layer> &DesktopModel::layers() {
    if (!std::exchange(layersChanged_, false))
        return layers_;
    layers_.clear();
    for (const auto *window : shownFrontToBack())
        layers_.push_back(layerOf(*window));
    layers_.push_back({.window = connection_.root(),
                       .region = desktop_,
                       .origin = {},
                       .generation = background_.generation()});
    return layers_;
}

void DesktopModel::redirect(std::uint32_t window) {
    const auto *held = stack_.find(window);
    if (!held || pictures_.isRedirected(window))
        return;
    // A compositing manager has had it redirected all along.
    pictures_.redirect(window, compositingManager_ ? QRegion() : coveredPart(*held),
                       innerCorner(*held));
}

QRegion DesktopModel::damage(const Layer &layer) const {
    const QRegion &damage = pictures_.damage(layer.window);
    const auto *window = damage.isEmpty() ? nullptr : stack_.find(layer.window);
    return window ? damage.translated(innerCorner(*window)) : QRegion();
}

QRegion DesktopModel::untrusted(const Layer &layer) const {
    const auto *window = stack_.find(layer.window);
    return window ? pictures_.untrusted(layer.window, innerCorner(*window)) : QRegion();
}

QRect DesktopModel::iconPlace(std::uint32_t window) const {
    const auto *owner = owners_.find(window);
    return owner ? owner->icon : QRect();
}

bool DesktopModel::isPrivate(std::uint32_t window) const {
    const auto *owner = owners_.find(window);
    return owner && (owner->sharingState == 0 || owner->isOurs);
}

xcb_render_picture_t DesktopModel::picture(const Layer &layer) {
    return layer.window == connection_.root() ? background_.picture()
                                              : pictures_.picture(layer.window);
}

} // namespace x11
