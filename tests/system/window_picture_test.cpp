// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/system/unrest.h"
#include "tests/system/window_server_fixture.h"

#include <random>

// The picture against the slow reference, pixel by pixel, after everything that windows do.

namespace {

class WindowPicture : public WindowServerFixture {};

class WindowPictureByMethod : public WindowServerFixture,
                              public testing::WithParamInterface<x11::TransferMethod> {
protected:
    WindowPictureByMethod() : WindowServerFixture(GetParam()) {}
};

std::string methodName(const testing::TestParamInfo<x11::TransferMethod> &info) {
    constexpr std::array names{"SharedPixmap", "SharedFetch", "PlainFetch"};
    return names[static_cast<std::size_t>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Methods, WindowPictureByMethod,
                         testing::Values(x11::TransferMethod::SharedPixmap,
                                         x11::TransferMethod::SharedFetch,
                                         x11::TransferMethod::PlainFetch),
                         methodName);

} // namespace

TEST_F(WindowPicture, showsTheWindowsThatAreAskedForInTheOrderGiven) {
    const auto below = client.show({.place = {20, 20, 300, 200}}, 1);
    const auto ours = client.show({.place = {60, 60, 300, 200}}, 2);
    EXPECT_TRUE(looksLikeReference({below, ours, client.root()})) << "nothing";
    client.drawPattern(ours, {0, 0, 60, 60}, 4);
    EXPECT_TRUE(looksLikeReference({ours}));
    EXPECT_TRUE(looksLikeReference()) << "drawing in it while it was left out";
    const std::vector<std::uint32_t> turned{below, ours, below, 12345, client.root()};
    const auto picture = server->composite(turned);
    client.restack(below, XCB_STACK_MODE_ABOVE);
    client.sync();
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->toQImage(), client.reference())
        << "the order asked for, not the order on screen; doubles and unknown numbers do nothing";
}

TEST_F(WindowPicture, isTheSameHandleUntilSomethingVisibleChanges) {
    const auto covered = client.show({.place = {50, 50, 100, 100}}, 1);
    const auto left = client.show({.place = {300, 50, 100, 100}}, 3);
    const auto cover = client.show({.place = {40, 40, 200, 200}}, 2);
    ASSERT_TRUE(looksLikeReference());
    const auto all = numbers();
    const auto before = *server->composite(all);
    EXPECT_TRUE(server->composite(all)->sameAs(before));

    client.drawPattern(covered, {0, 0, 100, 100}, 5);
    client.moveResize(covered, {60, 60, 90, 90});
    // Whatever is told of the covered window is here once the window on top is told of.
    const auto pixel = before.toQImage().pixel(310, 60);
    client.setProperty(cover, "_TOVAREL_SHARING", XCB_ATOM_CARDINAL, {0});
    client.sync();
    ASSERT_TRUE(eventually([&] { return described(cover)->sharingState == 0; }));
    EXPECT_TRUE(server->composite(all)->sameAs(before)) << "nothing that can be seen changed";

    client.fill(left, {0, 0, 100, 100}, ~pixel);
    client.sync();
    ASSERT_TRUE(eventually([&] { return !server->composite(all)->sameAs(before); }));
    EXPECT_EQ(before.toQImage().pixel(310, 60), pixel) << "a handle's pixels stay";
    client.moveResize(cover, {40, 200, 200, 200});
    EXPECT_TRUE(looksLikeReference()) << "uncovered, with what was drawn meanwhile";
    client.drawPattern(covered, {10, 10, 20, 20}, 6);
    EXPECT_TRUE(looksLikeReference()) << "and drawing is reported again";
}

TEST_F(WindowPicture, keepsTheOrderAboveAWindowThatWasGoneBeforeItWasLookedAt) {
    const auto below = client.show({.place = {20, 20, 300, 200}}, 1);
    const auto above = client.show({.place = {60, 60, 300, 200}}, 2);
    const auto guest = client.show({.place = {0, 0, 50, 50}}, 3);
    client.reparent(guest, above);
    ASSERT_TRUE(looksLikeReference());
    // Told of in one go: the guest is back on top, the lowest is placed on it, the guest is gone.
    client.reparent(guest, client.root());
    client.restack(below, XCB_STACK_MODE_ABOVE);
    client.destroy(guest);
    EXPECT_TRUE(looksLikeReference());
}

TEST_F(WindowPicture, showsTheBackgroundAlsoBeneathWindows) {
    const auto top = client.show({.place = {60, 40, 200, 100}}, 1);
    EXPECT_TRUE(looksLikeReference({top}));
    client.setBackgroundPixmap(true);
    EXPECT_TRUE(looksLikeReference());
    EXPECT_TRUE(looksLikeReference({top}));
    EXPECT_TRUE(looksLikeReference({client.root()})) << "left out";
    client.setProperty(client.root(), "_XROOTPMAP_ID", XCB_ATOM_PIXMAP, {0x1234567});
    EXPECT_TRUE(eventually([&] { return grab() == client.screen(); }))
        << "a pixmap that does not exist";
    const auto window = client.create({});
    client.setProperty(client.root(), "_XROOTPMAP_ID", XCB_ATOM_PIXMAP, {window});
    client.sync();
    EXPECT_TRUE(eventually([&] { return grab() == client.screen(); })) << "not a pixmap";
    if (client.compositingManagerRuns())
        return;
    client.setBackgroundPixmap(false);
    EXPECT_TRUE(looksLikeReference());
}

TEST_P(WindowPictureByMethod, keepsThePixelsOfEveryHandleThatIsHeld) {
    const auto window = client.show({.place = {60, 40, 300, 200}}, 1);
    ASSERT_TRUE(looksLikeReference());
    std::vector<Image> recording;
    std::vector<QImage> expected;
    for (std::uint32_t i = 0; i < 12; ++i) {
        client.drawPattern(window, {0, 0, 300, 10 + 10 * static_cast<int>(i)}, i + 2);
        ASSERT_TRUE(looksLikeReference());
        recording.push_back(*server->composite(numbers()));
        expected.push_back(client.reference());
        // Now and then one is let go, and what it was made of is drawn on again.
        if (i % 4 == 3) {
            recording.erase(recording.begin());
            expected.erase(expected.begin());
        }
    }
    server.reset();
    for (std::size_t i = 0; i < recording.size(); ++i)
        EXPECT_EQ(recording[i].toQImage(), expected[i]) << i;
}

TEST_P(WindowPictureByMethod, followsTheDesktopsSize) {
    client.setBackgroundPixmap(true);
    client.show({.place = {60, 40, 500, 300}}, 1);
    ASSERT_TRUE(looksLikeReference());
    const QSize before = client.desktop().size();
    client.resizeDesktop({500, 300});
    EXPECT_TRUE(looksLikeReference());
    EXPECT_EQ(grab().size(), QSize(500, 300));
    client.resizeDesktop(before);
    EXPECT_TRUE(looksLikeReference());
    EXPECT_EQ(grab().size(), before);
    EXPECT_EQ(server->listWindows().back().bounds, QRectF(client.desktop()));
    const auto method = server->method();
    EXPECT_TRUE(method.has_value() && *method >= GetParam()) << "no better one than allowed";
}

namespace {

/// The first picture where the second one is not said to differ from it.
QImage unchangedPart(const Image &picture, const QRegion &changed) {
    QImage part = picture.toQImage().copy();
    for (const QRect &place : changed.intersected(part.rect()))
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                part.setPixel(x, y, 0xff000000);
    return part;
}

// Of two grabs in a row, the second one says where it differs from the first.
void expectTruthAboutChanges(WindowServer &server, std::span<const std::uint32_t> windows,
                             Unrest &unrest) {
    const auto before = server.composite(windows);
    unrest.act();
    const auto after = server.composite(windows);
    ASSERT_TRUE(before && after);
    const auto changed = after->changesSince(*before);
    if (changed) {
        EXPECT_EQ(unchangedPart(*after, *changed), unchangedPart(*before, *changed));
    }
}

} // namespace

TEST_P(WindowPictureByMethod, isOnlyAsMuchAsIsAskedFor) {
    client.setBackgroundPixmap(true);
    const auto left = client.show({.place = {20, 20, 200, 150}}, 1);
    const auto right = client.show({.place = {300, 20, 200, 150}}, 2);
    const QRect part(0, 0, 250, 200);
    const auto partIsRight = [&] {
        return eventually([&] {
            const QImage expected = client.reference();
            const auto picture = server->composite(numbers(), part);
            return picture && picture->size() == expected.size() &&
                   picture->toQImage().copy(part) == expected.copy(part);
        });
    };
    ASSERT_TRUE(partIsRight());
    const Image before = *server->composite(numbers(), part);
    client.drawPattern(right, {0, 0, 200, 150}, 3);
    // What was drawn last on the right is here once a change on the left is.
    client.drawPattern(left, {0, 0, 10, 10}, 4);
    client.sync();
    ASSERT_TRUE(eventually([&] { return !server->composite(numbers(), part)->sameAs(before); }));
    const Image after = *server->composite(numbers(), part);
    client.drawPattern(right, {0, 0, 200, 150}, 5);
    client.sync();
    EXPECT_TRUE(server->composite(numbers(), part)->sameAs(after)) << "nothing changed in the part";
    EXPECT_TRUE(partIsRight());
    EXPECT_TRUE(looksLikeReference()) << "what was left out is made up for";
    client.drawPattern(left, {0, 0, 200, 150}, 6);
    EXPECT_TRUE(partIsRight());
}

TEST_P(WindowPictureByMethod, isRightAfterAnySequenceOfEvents) {
    const unsigned seed = seedOfThisRun(std::random_device()());
    SCOPED_TRACE("TOVAREL_TEST_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    const bool realOne = client.compositingManagerRuns();
    client.setBackgroundPixmap(true);
    Unrest unrest(client, seed);
    for (int round = 0; round < 40; ++round) {
        for (auto actions = random() % 8; actions > 0; --actions)
            unrest.act();
        if (!realOne && round % 10 == 9)
            client.actAsCompositingManager(round % 20 == 9);
        // A grab in the midst of it, of whatever is there, must leave nothing wrong behind.
        if (random() % 2 == 0)
            expectTruthAboutChanges(*server, numbers(), unrest);
        std::set<xcb_window_t> without;
        // One that composes nothing: only a picture that is composed here is blended.
        if (!realOne && client.compositingManagerRuns())
            without.insert(client.root());
        for (const auto number : numbers())
            if (random() % 5 == 0)
                without.insert(number);
        // A real one is not always right about shapes: what it shows is.
        ASSERT_TRUE(realOne && !without.contains(client.root()) ? looksLikeScreen(without)
                                                                : looksLikeReference(without))
            << "round " << round;
    }
}

namespace {

/// Windows of a client that draws once and never again, and one of ours on them. Nobody keeps any
/// of them apart but the server under test.
class NeverRedrawn : public WindowServerFixture {
protected:
    static constexpr std::uint32_t ourColor = 0xff13f08a;

    NeverRedrawn() : WindowServerFixture(x11::TransferMethod::SharedPixmap, Apart::No) {}

    void SetUp() override {
        constexpr int exactColours = 24; // bits
        if (client.compositingManagerRuns() || client.depth() != exactColours)
            GTEST_SKIP() << "windows have been kept apart, or the colour is not to be found again";
        client.setBackgroundPixmap(true);
    }

    /// Without a background of its own: the server leaves what is there where it is laid bare.
    xcb_window_t show(const QRect &place, std::uint32_t seed) {
        const auto window = client.create({.place = place, .overrideRedirect = true});
        const std::uint32_t none = XCB_BACK_PIXMAP_NONE;
        xcb_change_window_attributes(client.get(), window, XCB_CW_BACK_PIXMAP, &none);
        client.map(window);
        client.drawPattern(window, QRect(QPoint(), place.size()), seed);
        return window;
    }

    xcb_window_t showOurs(const QRect &place) {
        const auto window = client.create({.place = place, .overrideRedirect = true});
        xcb_change_window_attributes(client.get(), window, XCB_CW_BACK_PIXEL, &ourColor);
        client.map(window);
        return window;
    }

    std::ptrdiff_t ourPixelsOnScreen() {
        const QSize size = client.desktop().size();
        const x11::Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(
            client.get(),
            xcb_get_image(client.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, client.root(), 0, 0,
                          static_cast<std::uint16_t>(size.width()),
                          static_cast<std::uint16_t>(size.height()), 0xffffff),
            nullptr));
        const auto *words =
            reinterpret_cast<const std::uint32_t *>(xcb_get_image_data(image.get()));
        return std::count(words, words + size.width() * size.height(), ourColor & 0xffffff);
    }

    static int ourPixels(const QImage &picture, const QRect &where,
                         std::uint32_t color = ourColor) {
        int found = 0;
        const QRect looked = where.intersected(picture.rect());
        for (int y = looked.top(); y <= looked.bottom(); ++y)
            for (int x = looked.left(); x <= looked.right(); ++x)
                found += picture.pixel(x, y) == color ? 1 : 0;
        return found;
    }
};

} // namespace

TEST_F(NeverRedrawn, whatWasDrawnBeneathUsStaysWhenItsWindowIsRedirectedAnew) {
    constexpr std::uint32_t color = 0xff445566;
    const QRect place(150, 100, 250, 180);
    const auto below = show({60, 40, 300, 200}, 1);
    const auto aside = show({450, 300, 100, 80}, 2);
    const auto ours = showOurs(place);
    client.sync();
    auto obstacle = Obstacle::NoDisplay;
    server = X11WindowServer::create({}, obstacle);
    grab({ours});
    client.fill(below, {120, 80, 60, 60}, color);
    client.sync();
    EXPECT_EQ(ourPixels(grab({ours}), place, color), 60 * 60);
    client.restack(below, XCB_STACK_MODE_ABOVE, aside);
    client.sync();
    EXPECT_EQ(ourPixels(grab({ours}), place, color), 60 * 60);
    for (int i = 0; i < 3; ++i) {
        client.fill(below, {200, 80 + i, 10, 1}, 0xff000000); // until all pictures had their turn
        client.sync();
        EXPECT_EQ(ourPixels(grab({ours}), place, color), 60 * 60);
    }
}

TEST_F(NeverRedrawn, theScreenIsRecordedWhileAllOfItIsDrawnAgainAndAgainAndAfterwards) {
    constexpr int count = 6, restlessSteps = 12, steps = 24;
    std::vector<xcb_window_t> windows;
    for (int i = 0; i < count; ++i)
        windows.push_back(show({i * 100, i * 60, 80, 50}, 1));
    for (int step = 0; step < steps; ++step) {
        for (int i = 0; i < count; ++i)
            if (step < restlessSteps || step % count == i)
                client.drawPattern(windows[static_cast<std::size_t>(i)], {0, 0, 80, 50},
                                   static_cast<std::uint32_t>(step * count + i));
        client.sync();
        ASSERT_TRUE(looksLikeScreen()) << "step " << step;
    }
    EXPECT_TRUE(eventually([&] {
        const auto one = server->composite(numbers()), other = server->composite(numbers());
        return one && other && one->sameAs(*other);
    })) << "at rest";
}

TEST_F(NeverRedrawn, noSequenceOfEventsBeneathUsLetsAPixelOfOursBeTaken) {
    const unsigned seed = seedOfThisRun(std::random_device()());
    SCOPED_TRACE("TOVAREL_TEST_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    const auto upTo = [&random](int end) {
        return static_cast<int>(random() % static_cast<unsigned>(end));
    };
    const auto anyPlace = [&] {
        return QRect(upTo(500) - 50, upTo(300) - 50, 50 + upTo(250), 50 + upTo(200));
    };
    const QRect place(150, 100, 250, 180);
    std::vector<xcb_window_t> windows;
    xcb_window_t ours = XCB_NONE;
    for (int step = 0; step < 300; ++step) {
        // What a window that was beneath us shows when it comes out is the screen, and so recorded.
        if (ourPixelsOnScreen() != place.width() * place.height()) {
            for (const auto window : windows)
                client.destroy(window);
            windows.clear();
            client.destroy(ours);
            for (std::uint32_t i = 1; i < 5; ++i)
                windows.push_back(show(anyPlace(), i));
            ours = showOurs(place);
            client.sync();
            // Half of the time it comes too late to see them before they are covered.
            if (upTo(2) == 0) {
                auto obstacle = Obstacle::NoDisplay;
                server = X11WindowServer::create({}, obstacle);
            }
        }
        const auto window = windows[random() % windows.size()];
        const auto other = windows[random() % windows.size()];
        switch (upTo(6)) {
        case 0:
            if (other != window)
                client.restack(window, XCB_STACK_MODE_ABOVE, other);
            break;
        case 1:
            client.unmap(window);
            break;
        case 2:
            client.map(window);
            break;
        case 3:
            client.fill(window, {upTo(200), upTo(200), 30, 30}, 0xff0000ff);
            break;
        default:
            client.moveResize(window, anyPlace());
        }
        if (upTo(2) == 0)
            client.sync();
        // Long enough, now and then, for windows to be given back.
        if (step % 100 == 99)
            std::this_thread::sleep_for(std::chrono::milliseconds(350));
        ASSERT_EQ(ourPixels(grab({ours}), place), 0) << "step " << step;
    }
}
