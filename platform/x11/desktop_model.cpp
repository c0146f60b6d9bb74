// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/desktop_model.h"

#include "platform/regions.h"

#include <xcb/composite.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <ranges>
#include <utility>

namespace x11 {

namespace {

// Relative to ordinary windows; see WindowDescription.
constexpr std::int32_t backgroundLayer = -2;
constexpr std::int32_t popupLayer = 2;

QRect outerRect(int x, int y, int width, int height, int border) {
    return {x, y, width + 2 * border, height + 2 * border};
}

template <class T> const T &as(const xcb_generic_event_t &event) {
    return reinterpret_cast<const T &>(event);
}

} // namespace

// The order matters: first what tells of changes, then the redirection, then the one look at the
// tree. What happens in between is told twice rather than never.
DesktopModel::DesktopModel(Connection &connection)
    : connection_(connection), formats_(connection), pictures_(connection, formats_),
      owners_(connection), background_(connection, formats_) {
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY |
                               XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_connection_t *c = connection_.get();
    xcb_change_window_attributes(c, connection_.root(), XCB_CW_EVENT_MASK, &mask);
    xcb_xfixes_select_selection_input(c, connection_.root(), connection_.atoms().compositingManager,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    xcb_composite_redirect_subwindows(c, connection_.root(), XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    readTree();
    readCompositingManager();
}

void DesktopModel::readTree() {
    xcb_connection_t *c = connection_.get();
    const auto rootGeometry = xcb_get_geometry(c, connection_.root());
    const auto treeCookie = xcb_query_tree(c, connection_.root());
    if (const auto root = connection_.reply<xcb_get_geometry_reply>(rootGeometry))
        desktop_ = QRect(0, 0, root->width, root->height);
    const auto tree = connection_.reply<xcb_query_tree_reply>(treeCookie);
    if (!tree)
        return;
    // Told before the tree was read: the tree has it already, and in its final order.
    Event later;
    do {
        later = connection_.nextEvent();
    } while (later && later->full_sequence < treeCookie.sequence);

    const std::span children(xcb_query_tree_children(tree.get()), tree->children_len);
    std::vector<std::pair<xcb_get_geometry_cookie_t, xcb_get_window_attributes_cookie_t>> cookies;
    for (const auto child : children)
        cookies.emplace_back(xcb_get_geometry(c, child), xcb_get_window_attributes(c, child));
    for (std::size_t i = 0; i < children.size(); ++i) {
        const auto geometry = connection_.reply<xcb_get_geometry_reply>(cookies[i].first);
        const auto attributes =
            connection_.reply<xcb_get_window_attributes_reply>(cookies[i].second);
        StackedWindow window;
        window.number = children[i];
        if (geometry && attributes) {
            window.border = geometry->border_width;
            window.outer = outerRect(geometry->x, geometry->y, geometry->width, geometry->height,
                                     window.border);
            window.overrideRedirect = attributes->override_redirect != 0;
        }
        // Also one that is gone by now: until its end is told of, others may be placed above it.
        stack_.add(window);
        if (attributes && attributes->map_state != XCB_MAP_STATE_UNMAPPED)
            onMapped(children[i], true);
    }
    if (later)
        handle(*later);
}

void DesktopModel::readCompositingManager() {
    const auto owner = connection_.reply<xcb_get_selection_owner_reply>(
        xcb_get_selection_owner(connection_.get(), connection_.atoms().compositingManager));
    compositingManager_ = owner && owner->owner != XCB_NONE;
}

void DesktopModel::drain() {
    while (const auto event = connection_.nextEvent())
        handle(*event);
}

bool DesktopModel::takeFailures() { return std::exchange(failures_, false); }

bool DesktopModel::takeChanged() { return std::exchange(changed_, false); }

void DesktopModel::stackChanged() {
    changed_ = true;
    listChanged_ = true;
}

void DesktopModel::handle(const xcb_generic_event_t &event) {
    if (event.response_type == 0) {
        const auto &error = as<xcb_generic_error_t>(event);
        if (pictures_.onError(error))
            failures_ = changed_ = true;
        return;
    }
    // Clients send copies of structure events to the root window, by convention or by mistake;
    // only the server's own tell the truth.
    constexpr std::uint8_t sentByClient = 0x80;
    if ((event.response_type & sentByClient) != 0)
        return;
    if (!handleStructure(event))
        handleExtension(event);
}

bool DesktopModel::handleStructure(const xcb_generic_event_t &event) {
    switch (event.response_type) {
    case XCB_CREATE_NOTIFY:
        onCreate(as<xcb_create_notify_event_t>(event));
        return true;
    case XCB_DESTROY_NOTIFY:
        remove(as<xcb_destroy_notify_event_t>(event).window);
        return true;
    case XCB_MAP_NOTIFY:
        onMapped(as<xcb_map_notify_event_t>(event).window, true);
        return true;
    case XCB_UNMAP_NOTIFY:
        onMapped(as<xcb_unmap_notify_event_t>(event).window, false);
        return true;
    case XCB_CONFIGURE_NOTIFY:
        onConfigure(as<xcb_configure_notify_event_t>(event));
        return true;
    case XCB_REPARENT_NOTIFY:
        onReparent(as<xcb_reparent_notify_event_t>(event));
        return true;
    case XCB_CIRCULATE_NOTIFY: {
        const auto &circulate = as<xcb_circulate_notify_event_t>(event);
        if (stack_.circulate(circulate.window, circulate.place == XCB_PLACE_ON_TOP))
            stackChanged();
        return true;
    }
    case XCB_PROPERTY_NOTIFY:
        onProperty(as<xcb_property_notify_event_t>(event));
        return true;
    default:
        return false;
    }
}

void DesktopModel::handleExtension(const xcb_generic_event_t &event) {
    const Extensions &extensions = connection_.extensions();
    if (event.response_type == extensions.damageEvent + XCB_DAMAGE_NOTIFY) {
        changed_ = pictures_.onDamage(as<xcb_damage_notify_event_t>(event)) || changed_;
    } else if (event.response_type == extensions.shapeEvent + XCB_SHAPE_NOTIFY) {
        if (pictures_.onShape(as<xcb_shape_notify_event_t>(event)))
            stackChanged();
    } else if (event.response_type == extensions.fixesEvent + XCB_XFIXES_SELECTION_NOTIFY) {
        const auto &selection = as<xcb_xfixes_selection_notify_event_t>(event);
        compositingManager_ = selection.owner != XCB_NONE;
        stackChanged();
    }
}

void DesktopModel::onCreate(const xcb_create_notify_event_t &event) {
    stack_.add({.number = event.window,
                .outer = outerRect(event.x, event.y, event.width, event.height, event.border_width),
                .border = event.border_width,
                .overrideRedirect = event.override_redirect != 0});
}

void DesktopModel::remove(xcb_window_t window) {
    if (!stack_.remove(window))
        return;
    pictures_.forget(window);
    owners_.forget(window);
    stackChanged();
}

// What is on top of everything by the server's own hand (a compositing manager's overlay) shows
// windows that we have already.
void DesktopModel::onMapped(xcb_window_t window, bool mapped) {
    if (connection_.clientBits(window) == 0 || !stack_.setMapped(window, mapped))
        return;
    if (mapped) {
        pictures_.watch(window);
        pictures_.renew(window);
    } else {
        pictures_.drop(window);
    }
    stackChanged();
}

void DesktopModel::onConfigure(const xcb_configure_notify_event_t &event) {
    if (event.window == connection_.root()) {
        desktop_ = QRect(0, 0, event.width, event.height);
        stackChanged();
        return;
    }
    const auto *held = stack_.find(event.window);
    if (!held)
        return;
    const QRect outer = outerRect(event.x, event.y, event.width, event.height, event.border_width);
    if (held->outer.size() != outer.size() || held->border != event.border_width)
        pictures_.renew(event.window);
    stack_.configure({.number = event.window,
                      .outer = outer,
                      .border = event.border_width,
                      .overrideRedirect = event.override_redirect != 0},
                     event.above_sibling);
    stackChanged();
}

void DesktopModel::onReparent(const xcb_reparent_notify_event_t &event) {
    owners_.onReparent(event.window, event.parent);
    if (event.parent != connection_.root()) {
        remove(event.window);
        return;
    }
    // It comes with its place and without its size; unmapped, or a MapNotify follows.
    const auto geometry = connection_.reply<xcb_get_geometry_reply>(
        xcb_get_geometry(connection_.get(), event.window));
    StackedWindow window;
    window.number = event.window;
    window.overrideRedirect = event.override_redirect != 0;
    if (geometry) {
        window.border = geometry->border_width;
        window.outer =
            outerRect(event.x, event.y, geometry->width, geometry->height, window.border);
    }
    // Also one that is gone by now: until its end is told of, others may be placed above it.
    stack_.add(window);
}

void DesktopModel::onProperty(const xcb_property_notify_event_t &event) {
    if (event.window == connection_.root() && event.atom == connection_.atoms().rootPixmap) {
        background_.invalidate();
        changed_ = true;
        return;
    }
    listChanged_ = owners_.onProperty(event) || listChanged_;
}

std::vector<const StackedWindow *> DesktopModel::shownFrontToBack() {
    pictures_.settle();
    std::vector<const StackedWindow *> shown;
    for (const auto &window : stack_.bottomToTop())
        if (window.mapped && pictures_.isShowable(window.number) &&
            window.outer.intersects(desktop_))
            shown.push_back(&window);
    std::ranges::reverse(shown);
    return shown;
}

const std::vector<WindowDescription> &DesktopModel::windows() {
    if (!std::exchange(listChanged_, false))
        return windows_;
    const auto shown = shownFrontToBack();
    std::vector<std::uint32_t> numbers;
    for (const auto *window : shown)
        numbers.push_back(window->number);
    owners_.settle(numbers);
    windows_.clear();
    for (const auto *window : shown)
        windows_.push_back(describe(*window));
    windows_.push_back({.number = connection_.root(),
                        .ownerName = {},
                        .bounds = QRectF(desktop_),
                        .layer = backgroundLayer});
    return windows_;
}

WindowDescription DesktopModel::describe(const StackedWindow &window) const {
    WindowDescription description{
        .number = window.number, .ownerName = {}, .bounds = QRectF(window.outer)};
    if (const auto *owner = owners_.find(window.number)) {
        description.sharingState = owner->sharingState;
        description.ownerName = owner->name;
        description.ownerPid = owner->pid;
        description.layer = owner->layer;
    }
    description.opaque = !compositingManager_ && !pictures_.hasAlpha(window.number) &&
                         !pictures_.isShaped(window.number);
    // Frames bypass the window manager as well, being its own; menus have nobody who manages them.
    if (window.overrideRedirect && !owners_.isManaged(window.number))
        description.layer = popupLayer;
    return description;
}

std::vector<Layer> DesktopModel::layers(std::span<const std::uint32_t> numbers) {
    pictures_.settle();
    std::vector<Layer> layers;
    layers.reserve(numbers.size());
    for (const auto number : numbers) {
        if (std::ranges::find(layers, number, &Layer::window) != layers.end())
            continue;
        if (number == connection_.root()) {
            layers.push_back({.window = number,
                              .region = desktop_,
                              .origin = {},
                              .generation = background_.generation()});
            continue;
        }
        const auto *window = stack_.find(number);
        if (!window || !window->mapped || !pictures_.isShowable(number) ||
            !window->outer.intersects(desktop_))
            continue;
        const bool hasAlpha = pictures_.hasAlpha(number);
        layers.push_back({.window = number,
                          .region = pictures_.region(number, window->outer, window->border),
                          .origin = window->outer.topLeft(),
                          .blended = compositingManager_ && hasAlpha,
                          .raw = !compositingManager_ && hasAlpha,
                          .generation = pictures_.generation(number)});
    }
    return layers;
}

// Damage that nobody can see stays untaken: the server does not repeat itself about it, so that a
// film running beneath another window is silent until it comes into sight.
QRegion DesktopModel::takeDamage(const LayerStack &layers) {
    QRegion damage;
    for (std::size_t i = 0; i < layers.layers().size(); ++i) {
        const Layer &layer = layers.layers()[i];
        const QRect pending = pictures_.pendingDamage(layer.window);
        const auto *window = stack_.find(layer.window);
        if (pending.isEmpty() || !window)
            continue;
        const QPoint inner = layer.origin + QPoint(window->border, window->border);
        const QRegion seen = layers.visible(i).intersected(pending.translated(inner));
        if (seen.isEmpty())
            continue;
        damage = united(damage, seen);
        pictures_.takeDamage(layer.window);
    }
    return damage;
}

xcb_render_picture_t DesktopModel::picture(const Layer &layer) {
    return layer.window == connection_.root() ? background_.picture()
                                              : pictures_.picture(layer.window);
}

} // namespace x11
