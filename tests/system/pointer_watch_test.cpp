// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_input_watch.h"
#include "platform/x11/x11_pointer_watch.h"
#include "tests/system/window_server_fixture.h"

#include <QCoreApplication>
#include <QProcess>

#include <xcb/render.h>

#include <set>

namespace {

class PointerWatching : public WindowServerFixture {
protected:
    PointerWatching() : watch(x11::Connection::open()) {
        for (const QRgb colour : {qRgba(90, 0, 0, 130), qRgba(0, 80, 0, 255)}) {
            QImage shape(9, 13, QImage::Format_ARGB32_Premultiplied);
            shape.fill(colour);
            shape.setPixel(2, 5, qRgba(10, 20, 30, 40));
            shapes.push_back(shape);
        }
    }

    xcb_cursor_t cursorOf(const QImage &shape) {
        xcb_connection_t *c = client.get();
        const auto width = static_cast<std::uint16_t>(shape.width());
        const auto height = static_cast<std::uint16_t>(shape.height());
        const xcb_pixmap_t pixmap = xcb_generate_id(c);
        xcb_create_pixmap(c, 32, pixmap, client.root(), width, height);
        const xcb_gcontext_t context = xcb_generate_id(c);
        xcb_create_gc(c, context, pixmap, 0, nullptr);
        xcb_put_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width, height, 0, 0, 0, 32,
                      static_cast<std::uint32_t>(shape.sizeInBytes()), shape.constBits());
        const xcb_render_picture_t picture = xcb_generate_id(c);
        xcb_render_create_picture(c, picture, pixmap, alphaFormat(), 0, nullptr);
        const xcb_cursor_t cursor = xcb_generate_id(c);
        xcb_render_create_cursor(c, cursor, picture, hotSpot.x(), hotSpot.y());
        return cursor;
    }

    void show(xcb_window_t window, xcb_cursor_t cursor) {
        xcb_change_window_attributes(client.get(), window, XCB_CW_CURSOR, &cursor);
        client.sync();
    }

    void move(QPoint to) {
        xcb_warp_pointer(client.get(), XCB_NONE, client.root(), 0, 0, 0, 0,
                         static_cast<std::int16_t>(to.x()), static_cast<std::int16_t>(to.y()));
        client.sync();
    }

    static constexpr QPoint hotSpot{4, 6};
    x11::X11PointerWatch watch;
    std::vector<QImage> shapes;

private:
    xcb_render_pictformat_t alphaFormat() {
        const auto cookie = xcb_render_query_pict_formats(client.get());
        const x11::Reply<xcb_render_query_pict_formats_reply_t> formats(
            xcb_render_query_pict_formats_reply(client.get(), cookie, nullptr));
        for (auto each = xcb_render_query_pict_formats_formats_iterator(formats.get());
             each.rem > 0; xcb_render_pictforminfo_next(&each))
            if (each.data->depth == 32 && each.data->direct.alpha_mask == 0xff &&
                each.data->direct.alpha_shift == 24 && each.data->direct.red_shift == 16)
                return each.data->id;
        return 0;
    }
};

} // namespace

TEST_F(PointerWatching, tellsPlaceShapeAndWindowAndFetchesEachShapeOnce) {
    std::vector<xcb_window_t> windows;
    for (int i = 0; i < 2; ++i) {
        windows.push_back(client.show({.place = {60 + i * 200, 50, 150, 100}}));
        show(windows.back(), cursorOf(shapes[static_cast<std::size_t>(i)]));
    }
    for (int turn = 0; turn < 10; ++turn)
        for (std::size_t i = 0; i < 2; ++i) {
            const QPoint place(80 + static_cast<int>(i) * 200 + turn, 60 + turn);
            move(place);
            const auto pointer = watch.now();
            ASSERT_TRUE(pointer);
            EXPECT_EQ(pointer->place, place);
            EXPECT_EQ(pointer->shape, shapes[i]);
            EXPECT_EQ(pointer->hotSpot, hotSpot);
            EXPECT_EQ(pointer->window, windows[i]);
        }
    EXPECT_LE(watch.fetches(), 3);
}

TEST_F(PointerWatching, showsNothingOfAHiddenPointer) {
    const xcb_window_t window = client.show({.place = {60, 50, 150, 100}});
    QImage nothing(16, 16, QImage::Format_ARGB32_Premultiplied);
    nothing.fill(Qt::transparent);
    show(window, cursorOf(shapes[0]));
    move({80, 80});
    EXPECT_TRUE(watch.now());
    show(window, cursorOf(nothing));
    EXPECT_FALSE(watch.now());
    show(window, cursorOf(shapes[1]));
    EXPECT_TRUE(watch.now());
}

TEST_F(PointerWatching, followsTheSinglePicturesOfAnAnimatedOne) {
    const xcb_window_t window = client.show({.place = {60, 50, 150, 100}});
    const std::array elements{xcb_render_animcursorelt_t{cursorOf(shapes[0]), 30},
                              xcb_render_animcursorelt_t{cursorOf(shapes[1]), 30}};
    const xcb_cursor_t animated = xcb_generate_id(client.get());
    xcb_render_create_anim_cursor(client.get(), animated, elements.size(), elements.data());
    show(window, animated);
    move({80, 80});
    std::set<bool> seen; // whether it was the first one
    EXPECT_TRUE(eventually([&] {
        if (const auto pointer = watch.now()) {
            EXPECT_TRUE(pointer->shape == shapes[0] || pointer->shape == shapes[1]);
            seen.insert(pointer->shape == shapes[0]);
        }
        return seen.size() == 2;
    }));
}

TEST_F(PointerWatching, hearsButtonsAndTheirPlacesWhoeverHasGrabbedThePointer) {
    const auto input =
        x11::X11InputWatch::create(x11::Connection::open(), {.buttons = true, .keys = false});
    ASSERT_TRUE(input);
    const xcb_window_t window = client.show({.place = {60, 50, 150, 100}});
    client.sync();
    const x11::Reply<xcb_grab_pointer_reply_t> grab(xcb_grab_pointer_reply(
        client.get(),
        xcb_grab_pointer(client.get(), 0, window, XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    ASSERT_TRUE(grab);
    const char hand[] = "mousemove 100 90 mousedown 3 click 5 sleep 0.05 mouseup 3";
    ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"),
                                QString::fromLatin1(hand).split(QLatin1Char(' '))),
              0);
    std::vector<Timed<ButtonChange>> changes;
    EXPECT_TRUE(eventually([&] {
        QCoreApplication::processEvents();
        for (const auto &change : input->takeButtons())
            changes.push_back(change);
        return changes.size() >= 2;
    }));
    ASSERT_EQ(changes.size(), 2u) << "the wheel's turn is none";
    for (const bool down : {true, false}) {
        const ButtonChange &what = changes[down ? 0 : 1].what;
        EXPECT_EQ(what.button, 3);
        EXPECT_EQ(what.down, down);
        EXPECT_EQ(what.place, QPoint(100, 90));
        EXPECT_EQ(what.window, window);
    }
    xcb_ungrab_pointer(client.get(), XCB_CURRENT_TIME);
    client.sync();
}
