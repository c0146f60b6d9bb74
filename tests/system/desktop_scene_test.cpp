// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/system/window_server_fixture.h"

#include <QCoreApplication>

#include <array>
#include <atomic>
#include <cstdio>
#include <functional>
#include <thread>

// Recorded pictures against screenshots, under the window managers that people have: with frames of
// theirs, shadows, transparency, a panel, and windows that are on the display without being shown.

namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t secretMinimised = 0xffd3017b, secretElsewhere = 0xff7b01d3;
constexpr std::uint32_t colorBelow = 0xff2a9d5c, colorDrawn = 0xffe0b01a, colorOurs = 0xfff0f1f2;
constexpr std::uint32_t colorFocused = 0xff334455, colorFirst = 0xff11aa77;
constexpr int widestShadow = 64;

class DesktopScene : public WindowServerFixture {
protected:
    struct Wanted {
        QRect place;
        std::uint32_t color = 0xff808080;
        bool alpha = false;
        bool undecorated = false;
    };

    DesktopScene() : WindowServerFixture(x11::TransferMethod::SharedPixmap, Apart::No) {}

    void SetUp() override {
        WindowServerFixture::SetUp();
        ASSERT_TRUE(client.windowManagerRuns());
        client.setBackgroundPixmap(true);
        const auto first = manage({.place = {300, 200, 150, 100}, .color = colorFirst});
        restingScreen([](const QImage &it) { return ofColor(it, colorFirst) > 10'000; });
        client.destroy(first);
        restingScreen([](const QImage &it) { return ofColor(it, colorFirst) == 0; });
        auto obstacle = Obstacle::NoDisplay;
        server = X11WindowServer::create({}, obstacle);
    }

    /// A window in the window manager's care, at the place that it asks for.
    xcb_window_t manage(const Wanted &wanted) {
        const auto window = client.create({.place = wanted.place, .alpha = wanted.alpha});
        constexpr std::uint32_t userPosition = 1, userSize = 2; // ICCCM 4.1.2.3
        std::vector<std::uint32_t> hints(18);
        hints[0] = userPosition | userSize;
        client.setProperty(window, "WM_NORMAL_HINTS", client.atom("WM_SIZE_HINTS"), hints);
        if (wanted.undecorated)
            client.setProperty(window, "_MOTIF_WM_HINTS", client.atom("_MOTIF_WM_HINTS"),
                               {2, 0, 0, 0, 0});
        // What is lost of it while it is covered, the server draws anew.
        xcb_change_window_attributes(client.get(), window, XCB_CW_BACK_PIXEL, &wanted.color);
        client.map(window);
        EXPECT_TRUE(eventually([&] { return isViewable(window); }));
        client.fill(window, QRect(QPoint(), wanted.place.size()), wanted.color);
        client.sync();
        return window;
    }

    bool isViewable(xcb_window_t window) {
        const x11::Reply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
            client.get(), xcb_get_window_attributes(client.get(), window), nullptr));
        return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
    }

    /// The child of the root that holds the window.
    xcb_window_t top(xcb_window_t window) {
        for (;;) {
            const x11::Reply<xcb_query_tree_reply_t> tree(
                xcb_query_tree_reply(client.get(), xcb_query_tree(client.get(), window), nullptr));
            if (!tree || tree->parent == client.root() || tree->parent == XCB_NONE)
                return window;
            window = tree->parent;
        }
    }

    void ask(xcb_window_t window, const char *message, std::vector<std::uint32_t> values) {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = window;
        event.type = client.atom(message);
        std::ranges::copy(values, event.data.data32);
        xcb_send_event(client.get(), 0, client.root(),
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&event));
        client.sync();
    }

    void activate(xcb_window_t window) { ask(window, "_NET_ACTIVE_WINDOW", {2, 0, 0}); }
    void minimise(xcb_window_t window) { ask(window, "WM_CHANGE_STATE", {3}); }
    void keepAbove(xcb_window_t window) {
        ask(window, "_NET_WM_STATE", {1, client.atom("_NET_WM_STATE_ABOVE"), 0, 2});
    }

    /// The screen once it has come to rest, all effects being over.
    QImage lookUntilStill() {
        QImage before = client.screen();
        for (int still = 0, looks = 0; still < 4 && looks < 100; ++looks) {
            std::this_thread::sleep_for(100ms);
            QImage now = client.screen();
            still = now == before ? still + 1 : 0;
            before = std::move(now);
        }
        return before;
    }

    /// Likewise, and as it must be: on a busy machine a window manager may begin late, or stand
    /// still in the middle of an effect.
    template <class Condition> QImage restingScreen(Condition isAsItMustBe) {
        QImage screen;
        EXPECT_TRUE(eventually([&] { return isAsItMustBe(screen = lookUntilStill()); }))
            << "the window manager does not show what it was asked for";
        return screen;
    }

    QImage screenWithOurs() {
        return restingScreen([](const QImage &it) { return ofColor(it, colorOurs) > 10'000; });
    }
    QImage screenWithoutOurs() {
        return restingScreen([](const QImage &it) { return ofColor(it, colorOurs) == 0; });
    }

    /// The grab without our window, once its last effects are over; it must hold no secret, then
    /// and before.
    QImage grabAtRest(const std::set<xcb_window_t> &without, const QImage &screen,
                      const QRegion &place) {
        QImage picture;
        const QRegion outside = QRegion(screen.rect()).subtracted(place);
        // As at work, where there is a grab at every tick.
        for (int i = 0; i < 40 && (i < 8 || different(picture, screen, outside) > 0); ++i) {
            std::this_thread::sleep_for(100ms);
            picture = grab(without);
            expectNoSecret(picture);
        }
        return picture;
    }

    static int count(const QImage &picture, const QRegion &where,
                     const std::function<bool(int, int)> &condition) {
        int found = 0;
        for (const QRect &r : where.intersected(picture.rect()))
            for (int y = r.top(); y <= r.bottom(); ++y)
                for (int x = r.left(); x <= r.right(); ++x)
                    found += condition(x, y) ? 1 : 0;
        return found;
    }

    /// A background that is computed comes out a little different each time it is drawn.
    static bool differ(QRgb a, QRgb b) {
        constexpr int unseen = 2;
        return std::abs(qRed(a) - qRed(b)) > unseen || std::abs(qGreen(a) - qGreen(b)) > unseen ||
               std::abs(qBlue(a) - qBlue(b)) > unseen;
    }

    static int different(const QImage &a, const QImage &b, const QRegion &where) {
        return count(a, where, [&](int x, int y) { return differ(a.pixel(x, y), b.pixel(x, y)); });
    }

    static int ofColor(const QImage &picture, std::uint32_t color) {
        return count(picture, picture.rect(),
                     [&](int x, int y) { return picture.pixel(x, y) == color; });
    }

    static void expectNoSecret(const QImage &picture) {
        EXPECT_EQ(ofColor(picture, secretMinimised), 0) << "a minimised window";
        EXPECT_EQ(ofColor(picture, secretElsewhere), 0) << "a window of another workspace";
        EXPECT_EQ(ofColor(picture, colorOurs), 0) << "our window";
    }

    QRegion placeOf(xcb_window_t window) {
        const auto description = described(top(window));
        return description ? description->bounds.toRect().adjusted(-widestShadow, -widestShadow,
                                                                   widestShadow, widestShadow)
                           : QRect();
    }

    /// Outside of our window's place the grab is the screen, and beneath it what `expected` shows,
    /// but for so many pixels.
    void compare(const char *what, const QImage &seen, const QImage &screen, const QImage &expected,
                 const QRegion &place, int allowed) {
        const int outside = different(seen, screen, QRegion(screen.rect()).subtracted(place));
        const int beneath = different(seen, expected, place);
        std::printf("%-32s %6d pixels off outside, %6d beneath\n", what, outside, beneath);
        EXPECT_EQ(outside, 0) << what;
        EXPECT_LE(beneath, allowed) << what;
    }

    /// What this window manager's test may miss, in pixels: what cannot be had there.
    static int allowance(const char *name) {
        const char *given = std::getenv(name);
        return given ? std::atoi(given) : 0;
    }
};

} // namespace

TEST_F(DesktopScene, isTheScreenAndBeneathOurWindowsWhatIsThere) {
    const QSize desktop = client.desktop().size();
    ask(client.root(), "_NET_NUMBER_OF_DESKTOPS", {2});
    const auto below = manage({.place = {60, 80, 300, 200}, .color = colorBelow});
    const auto shadowed =
        manage({.place = {250, 60, 240, 180}, .alpha = true, .undecorated = true});
    client.setProperty(shadowed, "_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL, {20, 20, 20, 20});
    client.fill(shadowed, {0, 0, 240, 180}, 0x30000000);
    client.fill(shadowed, {20, 20, 200, 140}, 0xff5566aa);
    const auto faint = manage({.place = {480, 200, 160, 160}, .color = 0xffaa4422});
    client.setProperty(faint, "_NET_WM_WINDOW_OPACITY", XCB_ATOM_CARDINAL, {0x99999999});
    const auto shaped = client.show({.place = {120, 330, 160, 120}, .overrideRedirect = true}, 4);
    client.setShape(shaped, {{0, 0, 60, 60}, {80, 40, 70, 70}});
    const auto panel = client.create({.place = {0, desktop.height() - 24, desktop.width(), 24}});
    client.setProperty(panel, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
                       {client.atom("_NET_WM_WINDOW_TYPE_DOCK")});
    client.setProperty(panel, "_NET_WM_STRUT", XCB_ATOM_CARDINAL, {0, 0, 0, 24});
    client.map(panel);
    const auto minimised = manage({.place = {150, 150, 260, 200}, .color = secretMinimised});
    minimise(minimised);
    const auto elsewhere = manage({.place = {180, 120, 260, 200}, .color = secretElsewhere});
    ask(elsewhere, "_NET_WM_DESKTOP", {1, 2});
    const auto focused = manage({.place = {560, 440, 180, 90}, .color = colorFocused});
    activate(focused);
    const QImage away = restingScreen([](const QImage &it) {
        return ofColor(it, colorBelow) > 10'000 && ofColor(it, colorFocused) > 10'000;
    });
    expectNoSecret(away);
    compare("nothing of ours", grabAtRest({}, away, {}), away, away, {}, 0);
    EXPECT_FALSE(described(top(minimised))) << "minimised";
    EXPECT_FALSE(described(top(elsewhere))) << "on another workspace";

    auto ours = manage({.place = {140, 130, 300, 240}, .color = colorOurs});
    keepAbove(ours);
    activate(focused);
    QImage screen = screenWithOurs();
    QRegion place = placeOf(ours);
    QImage seen = grabAtRest({top(ours)}, screen, place);
    compare("our window in front", seen, screen, away, place, 0);
    EXPECT_EQ(seen, grab({top(ours)})) << "two grabs of the same";

    const QRect patch(100, 60, 120, 100);
    client.fill(below, patch, colorDrawn);
    screen = screenWithOurs();
    const QImage drawn = grabAtRest({top(ours)}, screen, place);
    EXPECT_GT(ofColor(drawn, colorDrawn), 1000) << "drawing beneath is seen";

    minimise(ours);
    EXPECT_TRUE(eventually([&] { return !described(top(ours)); }));
    const bool maybeStale = std::getenv("TOVAREL_MAYBE_STALE") != nullptr;
    const QImage drawnAway = restingScreen([maybeStale](const QImage &it) {
        return ofColor(it, colorOurs) == 0 && (maybeStale || ofColor(it, colorDrawn) > 0);
    });
    const bool stale = ofColor(drawnAway, colorDrawn) == 0;
    compare("drawing beneath", drawn, screen, drawnAway, place,
            allowance("TOVAREL_MISSED_DRAWN") + (stale ? patch.width() * patch.height() : 0));
    compare("our window minimised", grabAtRest({top(ours)}, drawnAway, {}), drawnAway, drawnAway,
            {}, 0);

    client.destroy(ours);
    ours = manage({.place = {160, 110, 300, 240}, .color = colorOurs});
    keepAbove(ours);
    activate(focused);
    for (int step = 0; step < 10; ++step) {
        client.moveResize(ours, {160 - 4 * step, 110 + 2 * step, 300, 240});
        client.sync();
        std::this_thread::sleep_for(16ms);
        expectNoSecret(grab({top(ours)}));
    }
    screen = screenWithOurs();
    place = placeOf(ours);
    compare("our window moved", grabAtRest({top(ours)}, screen, place), screen, drawnAway, place,
            allowance("TOVAREL_MISSED_DRAWN"));

    minimise(below);
    EXPECT_TRUE(eventually([&] { return !described(top(below)); }));
    screen = screenWithOurs();
    seen = grabAtRest({top(ours)}, screen, place);
    EXPECT_EQ(ofColor(seen, colorBelow), 0) << "what was minimised beneath us is forgotten";
    client.destroy(ours);
    const QImage rest = screenWithoutOurs();
    compare("a window minimised beneath", seen, screen, rest, place,
            allowance("TOVAREL_MISSED_BARE"));
}

// A window's own picture is ahead of the screen until the compositing manager has shown it.
// Measured under the one that takes longest for it: of the others, a busy machine makes as much.
TEST_F(DesktopScene, showsTheSameStepBeneathOurWindowAndBesideIt) {
    const int mostTorn = allowance("TOVAREL_MOST_TORN");
    if (mostTorn == 0)
        GTEST_SKIP() << "not the window manager for it";
    constexpr int grabs = 90;
    const QRect place(60, 80, 500, 400);
    const auto moving = manage({.place = place});
    const auto ours = manage({.place = {320, 160, 220, 180}, .color = colorOurs});
    keepAbove(ours);
    screenWithOurs();
    std::atomic<bool> go = true;
    std::thread painter([&go, moving, place] {
        XClient own;
        for (std::uint32_t step = 1; go; ++step) {
            own.fill(moving, QRect(QPoint(), place.size()), 0xff000000 | (step * 7 % 251) << 8);
            own.sync();
            std::this_thread::sleep_for(std::chrono::milliseconds(20 + step * 7 % 27));
        }
    });
    int torn = 0;
    std::set<QRgb> steps;
    auto due = std::chrono::steady_clock::now();
    for (int i = 0; i < grabs; ++i) {
        const QImage picture = grab({top(ours)});
        const QRgb beside = picture.pixel(150, 250), beneath = picture.pixel(420, 250);
        torn += beside != beneath ? 1 : 0;
        steps.insert(beside);
        for (due += 33ms; std::chrono::steady_clock::now() < due;) {
            QCoreApplication::processEvents();
            std::this_thread::sleep_for(1ms);
        }
    }
    go = false;
    painter.join();
    std::printf("%d of %d grabs torn, %zu steps seen\n", torn, grabs, steps.size());
    EXPECT_GT(steps.size(), 20u);
    EXPECT_LE(torn, mostTorn);
}
