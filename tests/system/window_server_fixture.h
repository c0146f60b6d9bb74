// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/x11_window_server.h"
#include "tests/support/x_client.h"

#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <thread>
#include <vector>

/// A window server of ours beside a client of the display that changes things under its hands.
class WindowServerFixture : public testing::Test {
protected:
    /// How long the display may take to come to rest, window managers and all.
    static constexpr std::chrono::seconds limit{10};

    /// Whether the client has the server keep all windows' pixels, as the reference needs it.
    enum class Apart { Yes, No };

    explicit WindowServerFixture(x11::TransferMethod method = x11::TransferMethod::SharedPixmap,
                                 Apart apart = Apart::Yes) {
        if (apart == Apart::Yes)
            client.keepWindowsApart();
        client.sync();
        const bool composited = client.compositingManagerRuns();
        client.setBackgroundPixmap(composited);
        client.sync();
        // A compositing manager shows it a little later, and may put grey where there is none.
        if (composited && apart == Apart::Yes)
            eventually([&] { return client.screen() == client.reference(); });
        auto obstacle = Obstacle::NoDisplay;
        server = X11WindowServer::create({.display = nullptr, .bestMethod = method}, obstacle);
    }

    void SetUp() override { ASSERT_TRUE(server); }

    /// Whether the condition comes true within the limit.
    template <class Condition> static bool eventually(Condition condition) {
        const auto deadline = std::chrono::steady_clock::now() + limit;
        while (!condition()) {
            if (std::chrono::steady_clock::now() > deadline)
                return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
        return true;
    }

    /// The numbers of all windows on screen, front to back, but those.
    std::vector<std::uint32_t> numbers(const std::set<xcb_window_t> &without = {}) {
        std::vector<std::uint32_t> list;
        for (const auto &window : server->listWindows())
            if (!without.contains(window.number))
                list.push_back(window.number);
        return list;
    }

    QImage grab(const std::set<xcb_window_t> &without = {}) {
        const auto picture = server->composite(numbers(without));
        return picture ? picture->toQImage() : QImage();
    }

    /// Whether the grab comes to equal the slow reference. What the client did last may still be on
    /// its way to the server under test, which is why one comparison is not enough; a display at
    /// rest must get there.
    testing::AssertionResult looksLikeReference(const std::set<xcb_window_t> &without = {}) {
        QImage expected, seen;
        const bool equal = eventually([&] {
            // What was covered when our server came to look at it is not believed before.
            grab(without);
            client.redraw();
            expected = asShown(client.reference(without));
            seen = asShown(grab(without));
            return seen == expected;
        });
        return equal ? testing::AssertionSuccess() : difference(seen, expected);
    }

    /// Whether the grab comes to equal the screen, but where those windows lie, with shadows.
    testing::AssertionResult looksLikeScreen(const std::set<xcb_window_t> &without = {}) {
        constexpr int widestShadow = 64;
        QImage expected, seen;
        const bool equal = eventually([&] {
            QRegion beneath;
            for (const auto &window : server->listWindows())
                if (without.contains(window.number))
                    beneath += window.bounds.toRect().adjusted(-widestShadow, -widestShadow,
                                                               widestShadow, widestShadow);
            seen = grab(without);
            expected = client.screen();
            for (const QRect &place : beneath.intersected(expected.rect()))
                for (int y = place.top(); y <= place.bottom(); ++y)
                    for (int x = place.left(); x <= place.right(); ++x)
                        expected.setPixel(x, y, seen.pixel(x, y));
            return seen == expected;
        });
        return equal ? testing::AssertionSuccess() : difference(seen, expected);
    }

    /// With no more colours than the screen has.
    QImage asShown(const QImage &picture) {
        constexpr int fewColours = 16; // bits
        return client.depth() > fewColours ? picture
                                           : picture.convertToFormat(QImage::Format_RGB16)
                                                 .convertToFormat(QImage::Format_RGB32);
    }

    static testing::AssertionResult difference(const QImage &seen, const QImage &expected) {
        auto failure = testing::AssertionFailure();
        if (seen.size() != expected.size())
            return failure << "size " << seen.width() << "x" << seen.height();
        QRegion wrong;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                if (seen.pixel(x, y) != expected.pixel(x, y))
                    wrong += QRect(x, y, 1, 1);
        const QRect box = wrong.boundingRect();
        return failure << "wrong from " << box.left() << ", " << box.top() << " to " << box.right()
                       << ", " << box.bottom() << "; first " << std::hex
                       << seen.pixel(wrong.begin()->topLeft()) << " for "
                       << expected.pixel(wrong.begin()->topLeft());
    }

    std::optional<WindowDescription> described(xcb_window_t window) {
        for (const auto &description : server->listWindows())
            if (description.number == window)
                return description;
        return {};
    }

    XClient client;
    std::unique_ptr<X11WindowServer> server;
};
