// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/desktop_model.h"

#include "platform/image/regions.h"

#include <xcb/xfixes.h>

#include <algorithm>
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

// The order matters: first what tells of changes, then the one look at the tree. What happens in
// between is reported twice rather than never.
DesktopModel::DesktopModel(Connection &connection)
    : connection_(connection), formats_(connection), pictures_(connection, formats_),
      owners_(connection), background_(connection, formats_), screen_(connection, formats_) {
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY |
                               XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_connection_t *c = connection_.get();
    xcb_change_window_attributes(c, connection_.root(), XCB_CW_EVENT_MASK, &mask);
    xcb_xfixes_select_selection_input(c, connection_.root(), connection_.atoms().compositingManager,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    readTree();
    readCompositingManager();
    readWorkspace();
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
    // Told before the tree was read: the tree has it already, and in its final order. Only drawing
    // is not in there.
    Event later = connection_.nextEvent();
    for (; later && later->full_sequence < treeCookie.sequence; later = connection_.nextEvent())
        handleExtension(*later);

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
        // Also one that is gone by now: until its end is reported, others may be placed above it.
        stack_.add(window);
        if (attributes && attributes->map_state != XCB_MAP_STATE_UNMAPPED)
            onMapped(children[i], true, treeCookie.sequence);
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

void DesktopModel::readWorkspace() {
    const auto property = connection_.reply<xcb_get_property_reply>(
        xcb_get_property(connection_.get(), 0, connection_.root(),
                         connection_.atoms().currentDesktop, XCB_ATOM_CARDINAL, 0, 1));
    workspace_.reset();
    if (property && property->format == 32 && property->value_len == 1)
        workspace_ = *static_cast<std::uint32_t *>(xcb_get_property_value(property.get()));
}

void DesktopModel::stackChanged() {
    changed_ = true;
    listChanged_ = true;
    layersChanged_ = true;
}

void DesktopModel::handle(const xcb_generic_event_t &event) {
    if (event.response_type == 0) {
        const auto &error = as<xcb_generic_error_t>(event);
        if (pictures_.onError(error))
            failures_ = true, stackChanged();
        else
            logDropped(error);
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
        onMapped(as<xcb_map_notify_event_t>(event).window, true, event.full_sequence);
        return true;
    case XCB_UNMAP_NOTIFY:
        onMapped(as<xcb_unmap_notify_event_t>(event).window, false, event.full_sequence);
        return true;
    case XCB_CONFIGURE_NOTIFY:
        onConfigure(as<xcb_configure_notify_event_t>(event), event.full_sequence);
        return true;
    case XCB_REPARENT_NOTIFY:
        onReparent(as<xcb_reparent_notify_event_t>(event));
        return true;
    case XCB_CIRCULATE_NOTIFY: {
        const auto &circulate = as<xcb_circulate_notify_event_t>(event);
        if (stack_.circulate(circulate.window, circulate.place == XCB_PLACE_ON_TOP)) {
            if (pictures_.isDoubtful(circulate.window, event.full_sequence))
                redirectAnew(circulate.window);
            distrustBeneath(circulate.window, event.full_sequence);
        }
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
        const auto &damage = as<xcb_damage_notify_event_t>(event);
        if (screen_.onRepaint(damage)) {
            drawingShown_ = true;
            ++repaints_;
        } else if (pictures_.onDamage(damage, event.full_sequence)) {
            drawingShown_ = false;
            changed_ = true;
        } else {
            changed_ = screen_.onDamage(damage) || changed_;
        }
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
    guards_.erase(window);
    owners_.forget(window);
    stackChanged();
}

// What is on top of everything by the server's own hand (a compositing manager's overlay) shows
// windows that we have already.
void DesktopModel::onMapped(xcb_window_t window, bool mapped, std::uint32_t sequence) {
    if (connection_.clientBits(window) == 0 || !stack_.setMapped(window, mapped))
        return;
    if (mapped) {
        pictures_.watch(window);
        pictures_.renew(window, {}, {});
    } else {
        pictures_.giveBack(window);
    }
    distrustBeneath(window, sequence);
}

// A window that is there may have been there already when those beneath it were redirected.
void DesktopModel::distrustBeneath(xcb_window_t window, std::uint32_t sequence) {
    stackChanged();
    const auto *above = stack_.find(window);
    if (!above || !above->mapped || compositingManager_)
        return;
    for (const auto &below : stack_.bottomToTop()) {
        if (below.number == window)
            return;
        if (pictures_.isRedirected(below.number))
            pictures_.distrust(below.number, above->outer.intersected(innerRect(below)),
                               innerCorner(below), sequence);
    }
}

void DesktopModel::onConfigure(const xcb_configure_notify_event_t &event, std::uint32_t sequence) {
    if (event.window == connection_.root()) {
        desktop_ = QRect(0, 0, event.width, event.height);
        stackChanged();
        return;
    }
    if (event.event != connection_.root()) {
        if (owners_.onClientResize(event.window))
            stackChanged();
        return;
    }
    const auto *held = stack_.find(event.window);
    if (!held)
        return;
    const QRect outer = outerRect(event.x, event.y, event.width, event.height, event.border_width);
    const bool resized = held->outer.size() != outer.size() || held->border != event.border_width;
    const bool moved = held->outer.topLeft() != outer.topLeft();
    stack_.configure({.number = event.window,
                      .outer = outer,
                      .border = event.border_width,
                      .overrideRedirect = event.override_redirect != 0},
                     event.above_sibling);
    if (resized) {
        held = stack_.find(event.window); // another place in the stack
        QRegion covered = coveredPart(*held);
        // What was drawn last may have been drawn into the new pixels, and is not reported again.
        if (compositingManager_)
            covered -= pictures_.damage(event.window).translated(innerCorner(*held));
        pictures_.renew(event.window, covered, innerCorner(*held));
        owners_.onResize(event.window);
    }
    // The server reports a window that it moves or raises as if it had been drawn.
    if (((moved || !resized) && pictures_.isDoubtful(event.window, sequence)) ||
        pictures_.hidesDrawing(event.window))
        redirectAnew(event.window);
    distrustBeneath(event.window, sequence);
}

// Its client is asked to draw once more what lies beneath other windows; not where a compositing
// manager has it redirected, too.
void DesktopModel::redirectAnew(xcb_window_t window) {
    if (compositingManager_)
        return;
    pictures_.giveBack(window);
    redirect(window);
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
    // Also one that is gone by now: until its end is reported, others may be placed above it.
    stack_.add(window);
}

void DesktopModel::onProperty(const xcb_property_notify_event_t &event) {
    if (event.window == connection_.root() && event.atom == connection_.atoms().rootPixmap) {
        background_.invalidate();
        stackChanged();
        return;
    }
    if (event.window == connection_.root() && event.atom == connection_.atoms().currentDesktop) {
        readWorkspace();
        stackChanged();
        return;
    }
    if (owners_.onProperty(event))
        stackChanged();
}

const std::vector<WindowDescription> &DesktopModel::windows() {
    if (!std::exchange(listChanged_, false))
        return windows_;
    const auto shown = shownFrontToBack();
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

} // namespace x11
