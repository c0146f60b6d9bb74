// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/shown_screen.h"

#include "platform/image/regions.h"

#include <xcb/xfixes.h>

#include <utility>
#include <vector>

namespace x11 {

namespace {

// More pieces than this cost more than the box around them.
constexpr int mostPieces = 64;

// What was drawn this often, in this many pieces each time, is expected to be drawn once more.
constexpr int timesUntilRestless = 4;
constexpr int fewPieces = 3;

} // namespace

const QRegion &RestlessPlaces::expectedAfter(const QRegion &drawn) {
    const QRegion again = drawn.intersected(common_);
    const bool goesOn = !again.isEmpty() && (pieces_ > fewPieces || !expected_.isEmpty());
    common_ = goesOn ? again : drawn;
    times_ = goesOn ? times_ + 1 : 0;
    pieces_ = 0;
    expected_ = times_ >= timesUntilRestless ? common_ : QRegion();
    return expected_;
}

void RestlessPlaces::calm() {
    expected_ = common_ = QRegion();
    times_ = 0;
}

ShownScreen::ShownScreen(Connection &connection, const PictureFormats &formats)
    : connection_(connection), picture_(connection.newId()), object_(connection.newId()) {
    const std::uint32_t withWindows = XCB_SUBWINDOW_MODE_INCLUDE_INFERIORS;
    xcb_render_create_picture(connection_.get(), picture_, connection_.root(),
                              formats.of(connection_.screen().root_visual).id,
                              XCB_RENDER_CP_SUBWINDOW_MODE, &withWindows);
    // The rectangles that are new among those that were not taken: a place is reported once.
    xcb_damage_create(connection_.get(), object_, connection_.root(),
                      XCB_DAMAGE_REPORT_LEVEL_DELTA_RECTANGLES);
}

void ShownScreen::tellRepaints(bool tell) {
    if (tell == (repaints_ != 0))
        return;
    if (tell) {
        repaints_ = connection_.newId();
        xcb_damage_create(connection_.get(), repaints_, connection_.root(),
                          XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
        xcb_flush(connection_.get());
    } else {
        xcb_damage_destroy(connection_.get(), std::exchange(repaints_, 0));
    }
}

bool ShownScreen::onRepaint(const xcb_damage_notify_event_t &event) {
    if (repaints_ == 0 || event.damage != repaints_)
        return false;
    xcb_damage_subtract(connection_.get(), repaints_, XCB_NONE, XCB_NONE);
    xcb_flush(connection_.get());
    return true;
}

bool ShownScreen::onDamage(const xcb_damage_notify_event_t &event) {
    if (event.damage != object_)
        return false;
    restless_.onPiece();
    damage_ =
        united(damage_, QRect(event.area.x, event.area.y, event.area.width, event.area.height));
    if (damage_.rectCount() > mostPieces)
        damage_ = damage_.boundingRect();
    return true;
}

QRegion ShownScreen::takeDamage(const QRegion &where) {
    const QRegion taken = damage_.intersected(where);
    const QRegion &left = restless_.expectedAfter(taken);
    untaken_ = !left.isEmpty();
    subtract(taken.subtracted(left));
    return taken;
}

void ShownScreen::pictureChanged(const QRegion &where) {
    if (!restless_.expected().subtracted(where).isEmpty())
        restless_.calm();
}

void ShownScreen::takeAll(const QRegion &where) {
    restless_.calm();
    subtract(damage_.intersected(where));
}

void ShownScreen::subtract(const QRegion &region) {
    if (region.isEmpty())
        return;
    std::vector<xcb_rectangle_t> rectangles;
    for (const auto &r : region)
        rectangles.push_back({static_cast<std::int16_t>(r.x()), static_cast<std::int16_t>(r.y()),
                              static_cast<std::uint16_t>(r.width()),
                              static_cast<std::uint16_t>(r.height())});
    xcb_connection_t *c = connection_.get();
    const xcb_xfixes_region_t parts = connection_.newId();
    xcb_xfixes_create_region(c, parts, static_cast<std::uint32_t>(rectangles.size()),
                             rectangles.data());
    xcb_damage_subtract(c, object_, parts, XCB_NONE);
    xcb_xfixes_destroy_region(c, parts);
    damage_ -= region;
}

} // namespace x11
