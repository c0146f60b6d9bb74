// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/support/x_client.h"

#include <xcb/composite.h>
#include <xcb/shape.h>

#include <bit>
#include <optional>
#include <span>

namespace {

/// One colour of a pixel, widened or narrowed to 8 bits.
std::uint32_t channel(std::uint32_t pixel, std::uint32_t mask) {
    const int bits = std::popcount(mask);
    const std::uint32_t value = (pixel & mask) >> std::countr_zero(mask);
    if (bits >= 8)
        return value >> (bits - 8);
    return value << (8 - bits) | value >> (2 * bits - 8);
}

/// The product of two fractions of 255, rounded to the nearest.
std::uint32_t product(std::uint32_t a, std::uint32_t b) {
    const std::uint32_t t = a * b + 0x80;
    return (t + (t >> 8)) >> 8;
}

std::uint32_t over(std::uint32_t above, std::uint32_t below) {
    const std::uint32_t rest = 255 - (above >> 24);
    std::uint32_t result = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const std::uint32_t sum =
            ((above >> shift) & 0xff) + product((below >> shift) & 0xff, rest);
        result |= std::min(sum, 255u) << shift;
    }
    return result;
}

/// A drawable's pixels as 0xAARRGGBB.
class Pixels {
public:
    Pixels(x11::Connection &connection, xcb_drawable_t drawable, const xcb_visualtype_t &visual)
        : visual_(visual) {
        const auto geometry =
            connection.reply<xcb_get_geometry_reply>(xcb_get_geometry(connection.get(), drawable));
        if (!geometry)
            return;
        size = QSize(geometry->width, geometry->height);
        depth = geometry->depth;
        image_ = connection.reply<xcb_get_image_reply>(
            xcb_get_image(connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, drawable, 0, 0,
                          geometry->width, geometry->height, ~0u));
        if (image_)
            stride_ = xcb_get_image_data_length(image_.get()) / size.height();
    }

    std::uint32_t at(int x, int y) const {
        const auto *row = xcb_get_image_data(image_.get()) + y * stride_;
        const std::uint32_t pixel = depth <= 16 ? reinterpret_cast<const std::uint16_t *>(row)[x]
                                                : reinterpret_cast<const std::uint32_t *>(row)[x];
        return (depth == 32 ? pixel & 0xff000000 : 0xff000000) |
               channel(pixel, visual_.red_mask) << 16 | channel(pixel, visual_.green_mask) << 8 |
               channel(pixel, visual_.blue_mask);
    }

    explicit operator bool() const { return image_ != nullptr; }

    QSize size;
    int depth = 0;

private:
    const xcb_visualtype_t &visual_;
    x11::Reply<xcb_get_image_reply_t> image_;
    int stride_ = 0;
};

const xcb_visualtype_t *visualOf(const xcb_screen_t &screen, xcb_visualid_t id) {
    auto depths = xcb_screen_allowed_depths_iterator(&screen);
    for (; depths.rem > 0; xcb_depth_next(&depths)) {
        auto visuals = xcb_depth_visuals_iterator(depths.data);
        for (; visuals.rem > 0; xcb_visualtype_next(&visuals))
            if (visuals.data->visual_id == id)
                return visuals.data;
    }
    return nullptr;
}

/// Everything that the window is not, as rectangles relative to its inner corner; none when it has
/// no shape of its own.
std::optional<QRegion> shapeOf(x11::Connection &connection, xcb_window_t window) {
    const auto extents = connection.reply<xcb_shape_query_extents_reply>(
        xcb_shape_query_extents(connection.get(), window));
    const auto list = connection.reply<xcb_shape_get_rectangles_reply>(
        xcb_shape_get_rectangles(connection.get(), window, XCB_SHAPE_SK_BOUNDING));
    if (!extents || !list || !extents->bounding_shaped)
        return {};
    QRegion shape;
    const std::span rectangles(
        xcb_shape_get_rectangles_rectangles(list.get()),
        static_cast<std::size_t>(xcb_shape_get_rectangles_rectangles_length(list.get())));
    for (const auto &r : rectangles)
        shape += QRect(r.x, r.y, r.width, r.height);
    return shape;
}

void putBackground(x11::Connection &connection, QImage &desktop) {
    const auto property = connection.reply<xcb_get_property_reply>(
        xcb_get_property(connection.get(), 0, connection.root(), connection.atoms().rootPixmap,
                         XCB_ATOM_PIXMAP, 0, 1));
    if (!property || property->value_len != 1)
        return;
    const auto pixmap = *static_cast<xcb_pixmap_t *>(xcb_get_property_value(property.get()));
    const Pixels pixels(connection, pixmap,
                        *visualOf(connection.screen(), connection.screen().root_visual));
    if (!pixels)
        return;
    for (int y = 0; y < desktop.height(); ++y)
        for (int x = 0; x < desktop.width(); ++x)
            desktop.setPixel(x, y, pixels.at(x % pixels.size.width(), y % pixels.size.height()));
}

void putWindow(x11::Connection &connection, xcb_window_t window, bool blend, QImage &desktop) {
    const auto attributes = connection.reply<xcb_get_window_attributes_reply>(
        xcb_get_window_attributes(connection.get(), window));
    const auto geometry =
        connection.reply<xcb_get_geometry_reply>(xcb_get_geometry(connection.get(), window));
    if (!attributes || !geometry || attributes->map_state != XCB_MAP_STATE_VIEWABLE ||
        attributes->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT)
        return;
    const auto pixmap = connection.newId();
    xcb_composite_name_window_pixmap(connection.get(), window, pixmap);
    const Pixels pixels(connection, pixmap, *visualOf(connection.screen(), attributes->visual));
    xcb_free_pixmap(connection.get(), pixmap);
    if (!pixels)
        return;
    const auto shape = shapeOf(connection, window);
    const int border = geometry->border_width;
    for (int y = 0; y < pixels.size.height(); ++y)
        for (int x = 0; x < pixels.size.width(); ++x) {
            const QPoint place(geometry->x + x, geometry->y + y);
            if (!desktop.rect().contains(place) ||
                (shape && !shape->contains(QPoint(x - border, y - border))))
                continue;
            const std::uint32_t pixel = pixels.at(x, y);
            desktop.setPixel(place, blend ? over(pixel, desktop.pixel(place)) | 0xff000000
                                          : pixel | 0xff000000);
        }
}

} // namespace

QImage XClient::screen() {
    const Pixels pixels(*connection_, root(),
                        *visualOf(connection_->screen(), connection_->screen().root_visual));
    QImage picture(pixels.size, QImage::Format_RGB32);
    for (int y = 0; y < pixels.size.height(); ++y)
        for (int x = 0; x < pixels.size.width(); ++x)
            picture.setPixel(x, y, pixels.at(x, y));
    return picture;
}

QImage XClient::reference(const std::set<xcb_window_t> &without) {
    QImage picture(desktop().size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    if (!without.contains(root()))
        putBackground(*connection_, picture);
    const bool blend = compositingManagerRuns();
    const auto tree = connection_->reply<xcb_query_tree_reply>(xcb_query_tree(get(), root()));
    const std::span children(xcb_query_tree_children(tree.get()), tree->children_len);
    for (const auto window : children)
        if (connection_->clientBits(window) != 0 && !without.contains(window))
            putWindow(*connection_, window, blend, picture);
    return picture;
}
