// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/support/x_client.h"

#include <xcb/composite.h>
#include <xcb/randr.h>
#include <xcb/shape.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <random>
#include <span>

namespace {

std::int16_t coordinate(int pixels) { return static_cast<std::int16_t>(pixels); }
std::uint16_t extent(int pixels) { return static_cast<std::uint16_t>(pixels); }

xcb_rectangle_t rectangle(const QRect &r) {
    return {coordinate(r.x()), coordinate(r.y()), extent(r.width()), extent(r.height())};
}

constexpr std::uint32_t halfGrey = 0x80404040; // premultiplied

} // namespace

XClient::XClient() : connection_(x11::Connection::open()) {
    if (!connection_) {
        std::fputs("no display\n", stderr);
        std::abort();
    }
    alphaColors_ = connection_->newId();
    xcb_create_colormap(get(), XCB_COLORMAP_ALLOC_NONE, alphaColors_, root(), alphaVisual());
}

QRect XClient::desktop() {
    const auto geometry =
        connection_->reply<xcb_get_geometry_reply>(xcb_get_geometry(get(), root()));
    return {0, 0, geometry->width, geometry->height};
}

// A display that lights the desktop has to be put out before the desktop can become smaller.
void XClient::resizeDesktop(const QSize &size) {
    const auto resources = connection_->reply<xcb_randr_get_screen_resources_reply>(
        xcb_randr_get_screen_resources(get(), root()));
    const std::span displays(xcb_randr_get_screen_resources_crtcs(resources.get()),
                             resources->num_crtcs);
    for (const auto display : displays)
        connection_->reply<xcb_randr_set_crtc_config_reply>(
            xcb_randr_set_crtc_config(get(), display, XCB_CURRENT_TIME, XCB_CURRENT_TIME, 0, 0,
                                      XCB_NONE, XCB_RANDR_ROTATION_ROTATE_0, 0, nullptr));
    constexpr std::uint32_t millimetres = 200; // any but 0
    xcb_randr_set_screen_size(get(), root(), extent(size.width()), extent(size.height()),
                              millimetres, millimetres);
}

xcb_visualid_t XClient::alphaVisual() const {
    auto depths = xcb_screen_allowed_depths_iterator(&connection_->screen());
    for (; depths.rem > 0; xcb_depth_next(&depths))
        if (depths.data->depth == 32 && xcb_depth_visuals_length(depths.data) > 0)
            return xcb_depth_visuals(depths.data)->visual_id;
    return 0;
}

xcb_window_t XClient::create(const Spec &spec) {
    const auto window = connection_->newId();
    const auto &place = spec.place;
    const auto windowClass =
        spec.inputOnly ? XCB_WINDOW_CLASS_INPUT_ONLY : XCB_WINDOW_CLASS_INPUT_OUTPUT;
    std::vector<std::uint32_t> values;
    std::uint32_t mask = XCB_CW_OVERRIDE_REDIRECT;
    if (!spec.inputOnly) {
        mask |= XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL;
        values = {halfGrey, 0xff808000};
    }
    values.push_back(spec.overrideRedirect);
    if (spec.alpha) {
        mask |= XCB_CW_COLORMAP;
        values.push_back(alphaColors_);
    }
    const std::uint8_t depth = spec.alpha ? 32 : XCB_COPY_FROM_PARENT;
    xcb_create_window(get(), depth, window, root(), coordinate(place.x()), coordinate(place.y()),
                      extent(place.width()), extent(place.height()), spec.border,
                      static_cast<std::uint16_t>(windowClass),
                      spec.alpha ? alphaVisual() : XCB_COPY_FROM_PARENT, mask, values.data());
    return window;
}

xcb_window_t XClient::show(const Spec &spec, std::uint32_t seed) {
    const auto window = create(spec);
    map(window);
    drawPattern(window, QRect(QPoint(), spec.place.size()), seed);
    return window;
}

void XClient::destroy(xcb_window_t window) { xcb_destroy_window(get(), window); }
void XClient::map(xcb_window_t window) { xcb_map_window(get(), window); }
void XClient::unmap(xcb_window_t window) { xcb_unmap_window(get(), window); }

void XClient::moveResize(xcb_window_t window, const QRect &place) {
    const std::array values{place.x(), place.y(), place.width(), place.height()};
    xcb_configure_window(get(), window,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         values.data());
}

void XClient::setBorder(xcb_window_t window, std::uint16_t width, std::uint32_t color) {
    const std::uint32_t widthValue = width;
    xcb_configure_window(get(), window, XCB_CONFIG_WINDOW_BORDER_WIDTH, &widthValue);
    xcb_change_window_attributes(get(), window, XCB_CW_BORDER_PIXEL, &color);
}

void XClient::restack(xcb_window_t window, xcb_stack_mode_t mode, xcb_window_t sibling) {
    std::vector<std::uint32_t> values;
    std::uint16_t mask = XCB_CONFIG_WINDOW_STACK_MODE;
    if (sibling != 0) {
        mask |= XCB_CONFIG_WINDOW_SIBLING;
        values.push_back(sibling);
    }
    values.push_back(static_cast<std::uint32_t>(mode));
    xcb_configure_window(get(), window, mask, values.data());
}

void XClient::circulate(bool raiseLowest) {
    xcb_circulate_window(
        get(), raiseLowest ? XCB_CIRCULATE_RAISE_LOWEST : XCB_CIRCULATE_LOWER_HIGHEST, root());
}

void XClient::setShape(xcb_window_t window, const std::vector<QRect> &rectangles) {
    if (rectangles.empty()) {
        xcb_shape_mask(get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window, 0, 0, XCB_NONE);
        return;
    }
    std::vector<xcb_rectangle_t> list;
    for (const auto &r : rectangles)
        list.push_back(rectangle(r));
    xcb_shape_rectangles(get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED,
                         window, 0, 0, static_cast<std::uint32_t>(list.size()), list.data());
}

xcb_pixmap_t XClient::pixmap(const QSize &size) {
    const auto made = connection_->newId();
    xcb_create_pixmap(get(), connection_->screen().root_depth, made, root(), extent(size.width()),
                      extent(size.height()));
    return made;
}

xcb_gcontext_t XClient::contextFor(xcb_drawable_t drawable) {
    const auto context = connection_->newId();
    const std::uint32_t noExposures = 0;
    xcb_create_gc(get(), context, drawable, XCB_GC_GRAPHICS_EXPOSURES, &noExposures);
    return context;
}

void XClient::fill(xcb_drawable_t drawable, const QRect &where, std::uint32_t argb) {
    const auto context = contextFor(drawable);
    xcb_change_gc(get(), context, XCB_GC_FOREGROUND, &argb);
    const auto r = rectangle(where);
    xcb_poly_fill_rectangle(get(), drawable, context, 1, &r);
    xcb_free_gc(get(), context);
}

void XClient::copy(xcb_drawable_t from, xcb_drawable_t to, const QSize &size) {
    const auto context = contextFor(to);
    xcb_copy_area(get(), from, to, context, 0, 0, 0, 0, extent(size.width()),
                  extent(size.height()));
    xcb_free_gc(get(), context);
}

void XClient::drawPattern(xcb_window_t window, const QRect &where, std::uint32_t seed) {
    std::minstd_rand random(seed);
    const auto context = contextFor(window);
    const int step = 12;
    for (int y = where.top(); y <= where.bottom(); y += step) {
        for (int x = where.left(); x <= where.right(); x += step) {
            // Premultiplied: no colour above the opacity.
            const auto opacity = static_cast<std::uint32_t>(random() % 256);
            std::uint32_t argb = opacity << 24;
            for (int shift = 0; shift < 24; shift += 8)
                argb |= static_cast<std::uint32_t>(random() % (opacity + 1)) << shift;
            xcb_change_gc(get(), context, XCB_GC_FOREGROUND, &argb);
            const auto r = rectangle(QRect(x, y, step, step).intersected(where));
            xcb_poly_fill_rectangle(get(), window, context, 1, &r);
        }
    }
    xcb_free_gc(get(), context);
}

xcb_atom_t XClient::atom(const char *name) {
    const auto answer = connection_->reply<xcb_intern_atom_reply>(
        xcb_intern_atom(get(), 0, static_cast<std::uint16_t>(std::strlen(name)), name));
    return answer ? answer->atom : XCB_NONE;
}

void XClient::setProperty(xcb_window_t window, const char *name, xcb_atom_t type,
                          std::vector<std::uint32_t> value) {
    xcb_change_property(get(), XCB_PROP_MODE_REPLACE, window, atom(name), type, 32,
                        static_cast<std::uint32_t>(value.size()), value.data());
}

void XClient::setText(xcb_window_t window, xcb_atom_t property, const QByteArray &text) {
    xcb_change_property(get(), XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
}

void XClient::reparent(xcb_window_t window, xcb_window_t parent) {
    xcb_reparent_window(get(), window, parent, 5, 15);
}

void XClient::setBackgroundPixmap(bool present) {
    const auto show = [this](std::uint32_t background) {
        xcb_change_window_attributes(get(), root(), XCB_CW_BACK_PIXMAP, &background);
        xcb_clear_area(get(), 0, root(), 0, 0, 0, 0);
    };
    if (!present) {
        xcb_delete_property(get(), root(), connection_->atoms().rootPixmap);
        const std::uint32_t black = connection_->screen().black_pixel;
        xcb_change_window_attributes(get(), root(), XCB_CW_BACK_PIXEL, &black);
        xcb_clear_area(get(), 0, root(), 0, 0, 0, 0);
        return;
    }
    // Smaller than the desktop: it is to be repeated, which not all compositing managers do.
    const QRect whole = compositingManagerRuns() ? desktop() : QRect(0, 0, 150, 90);
    const auto background = pixmap(whole.size());
    drawPattern(background, whole, 77);
    show(background);
    setProperty(root(), "_XROOTPMAP_ID", XCB_ATOM_PIXMAP, {background});
}

void XClient::keepWindowsApart() {
    xcb_composite_redirect_subwindows(get(), root(), XCB_COMPOSITE_REDIRECT_AUTOMATIC);
}

void XClient::redraw() {
    redraw(root());
    sync();
}

void XClient::redraw(xcb_window_t window) {
    const auto tree = connection_->reply<xcb_query_tree_reply>(xcb_query_tree(get(), window));
    if (!tree)
        return;
    for (const auto child : std::span(xcb_query_tree_children(tree.get()), tree->children_len)) {
        const auto size =
            connection_->reply<xcb_get_geometry_reply>(xcb_get_geometry(get(), child));
        if (size && window == root())
            redrawWithChildren(child, {size->width, size->height});
        if (size)
            copy(child, child, {size->width, size->height});
        redraw(child);
    }
}

// The borders of windows within are nobody's to draw but the server's, which does not say so.
void XClient::redrawWithChildren(xcb_window_t window, const QSize &size) {
    const auto context = contextFor(window);
    const std::uint32_t mode = XCB_SUBWINDOW_MODE_INCLUDE_INFERIORS;
    xcb_change_gc(get(), context, XCB_GC_SUBWINDOW_MODE, &mode);
    xcb_copy_area(get(), window, window, context, 0, 0, 0, 0, extent(size.width()),
                  extent(size.height()));
    xcb_free_gc(get(), context);
}

void XClient::actAsCompositingManager(bool active) {
    const auto selection = connection_->atoms().compositingManager;
    if (active && selectionOwner_ == 0)
        selectionOwner_ = create({});
    xcb_set_selection_owner(get(), active ? selectionOwner_ : XCB_NONE, selection,
                            XCB_CURRENT_TIME);
}

bool XClient::compositingManagerRuns() {
    const auto owner = connection_->reply<xcb_get_selection_owner_reply>(
        xcb_get_selection_owner(get(), connection_->atoms().compositingManager));
    return owner && owner->owner != XCB_NONE;
}

bool XClient::windowManagerRuns() {
    const auto check = connection_->reply<xcb_get_property_reply>(xcb_get_property(
        get(), 0, root(), atom("_NET_SUPPORTING_WM_CHECK"), XCB_ATOM_WINDOW, 0, 1));
    return check && check->value_len == 1;
}
