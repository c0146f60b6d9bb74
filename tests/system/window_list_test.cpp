// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/system/window_server_fixture.h"

#include <QCoreApplication>
#include <QProcess>
#include <map>

#include <cstdlib>
#include <unistd.h>

namespace {

class WindowList : public WindowServerFixture {};

/// Another process with one window, of its own class or of none; it ends with this object.
class ForeignProgram {
public:
    explicit ForeignProgram(const QString &windowClass) {
        process_.start(QCoreApplication::applicationFilePath(),
                       {QStringLiteral("--foreign-program"), windowClass});
        while (process_.waitForReadyRead() && !process_.canReadLine())
            continue;
        window = process_.readLine().trimmed().toUInt();
    }
    ~ForeignProgram() {
        process_.closeWriteChannel();
        process_.waitForFinished();
    }

    qint64 pid() const { return process_.processId(); }

    xcb_window_t window = 0;

private:
    QProcess process_;
};

const QString ours = QStringLiteral("Tovarel");

} // namespace

TEST_F(WindowList, goesFrontToBackAndEndsWithTheBackground) {
    const auto lower = client.create({.place = {10, 20, 100, 80}, .border = 5});
    const auto upper = client.create({.place = {-40, 20, 60, 80}, .overrideRedirect = true});
    const auto unseen = client.create({.place = {2000, 20, 60, 80}});
    const auto input = client.create({.place = {10, 20, 100, 80}, .inputOnly = true});
    const auto unmapped = client.create({});
    const auto panel = client.create({.place = {0, 300, 600, 30}});
    client.setProperty(panel, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
                       {client.atom("_NET_WM_WINDOW_TYPE_DOCK")});
    for (const auto window : {lower, upper, unseen, input, panel})
        client.map(window);
    client.sync();
    ASSERT_TRUE(eventually([&] { return described(panel).has_value(); }));

    EXPECT_FALSE(described(unseen)) << "off the screen";
    EXPECT_FALSE(described(input));
    EXPECT_FALSE(described(unmapped));
    const auto seenLower = described(lower), seenUpper = described(upper);
    ASSERT_TRUE(seenLower && seenUpper);
    EXPECT_EQ(seenLower->bounds, QRectF(10, 20, 110, 90)) << "with its border";
    EXPECT_EQ(seenLower->layer, 0);
    EXPECT_EQ(seenLower->sharingState, 1);
    EXPECT_GT(described(panel)->layer, 0);
    EXPECT_GT(seenUpper->layer, 0) << "a menu";
    const auto all = server->listWindows();
    EXPECT_EQ(all.back().number, client.root());
    EXPECT_LT(all.back().layer, 0);
    EXPECT_EQ(all.back().bounds, QRectF(client.desktop()));
    const auto order = numbers();
    EXPECT_LT(std::ranges::find(order, upper), std::ranges::find(order, lower));

    const bool composited = client.compositingManagerRuns();
    EXPECT_EQ(seenLower->opaque, !composited);
    client.setShape(lower, {{0, 0, 50, 50}});
    client.sync();
    EXPECT_TRUE(eventually([&] { return !described(lower)->opaque; }));
    const auto clear = client.show({.place = {0, 0, 50, 50}, .alpha = true}, 1);
    client.sync();
    ASSERT_TRUE(eventually([&] { return described(clear).has_value(); }));
    EXPECT_FALSE(described(clear)->opaque);
    if (!composited) {
        client.actAsCompositingManager(true);
        client.sync();
        EXPECT_TRUE(eventually([&] { return !described(upper)->opaque; }));
        client.actAsCompositingManager(false);
        client.sync();
        EXPECT_TRUE(eventually([&] { return described(upper)->opaque; }));
    }

    client.restack(lower, XCB_STACK_MODE_ABOVE);
    client.sync();
    EXPECT_TRUE(eventually([&] { return numbers().front() == lower; }));
    client.destroy(lower);
    client.sync();
    EXPECT_TRUE(eventually([&] { return !described(lower); }));
}

TEST_F(WindowList, namesTheApplicationAndItsProcess) {
    const ForeignProgram editor(QStringLiteral("Editor")), nameless{QString()};
    const auto own = client.show({.overrideRedirect = true});
    client.setClass(own, QByteArray("x\0Something\0", 12));
    client.sync();
    ASSERT_TRUE(eventually(
        [&] { return described(editor.window) && described(nameless.window) && described(own); }));
    EXPECT_EQ(described(editor.window)->ownerName, QStringLiteral("Editor"));
    EXPECT_EQ(described(editor.window)->ownerPid, editor.pid());
    EXPECT_EQ(described(nameless.window)->ownerName, std::nullopt);
    EXPECT_EQ(described(nameless.window)->ownerPid, nameless.pid());
    EXPECT_EQ(described(own)->ownerName, ours) << "whatever class it claims";
    EXPECT_EQ(described(own)->ownerPid, getpid());

    client.setClass(editor.window, QByteArray("x\0Schl\xc3\xbcssel\0", 13));
    client.sync();
    EXPECT_TRUE(eventually(
        [&] { return described(editor.window)->ownerName == QString::fromUtf8("Schlüssel"); }));
}

TEST_F(WindowList, tellsWhichWindowsOptedOutOfSharing) {
    const auto window = client.show({.overrideRedirect = true});
    client.sync();
    ASSERT_TRUE(eventually([&] { return described(window).has_value(); }));
    const auto becomes = [&](std::uint32_t property, std::int32_t state) {
        client.setProperty(window, "_TOVAREL_SHARING", XCB_ATOM_CARDINAL, {property});
        client.sync();
        return eventually([&] { return described(window)->sharingState == state; });
    };
    EXPECT_TRUE(becomes(0, 0));
    EXPECT_TRUE(becomes(2, 1));
}

// The frame is made by this process, its client by another: the client's owner is the window's.
TEST_F(WindowList, knowsTitlesAndWhatIsSeenOfOthersWindows) {
    if (client.windowManagerRuns())
        GTEST_SKIP() << "a window manager makes the frames here";
    const ForeignProgram program(QStringLiteral("editor"));
    const ForeignProgram panel(QStringLiteral("panel"));
    client.setText(program.window, XCB_ATOM_WM_NAME, "old name");
    client.setText(program.window, client.atom("_NET_WM_NAME"), "m\xc3\xbc.txt");
    client.setProperty(program.window, "_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL, {5, 6, 7, 8});
    client.setProperty(panel.window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
                       {client.atom("_NET_WM_WINDOW_TYPE_DOCK")});
    client.show({.place = {10, 20, 100, 80}});
    client.sync();
    const auto titled = [this] {
        const auto all = server->titledWindows();
        return all.size() == 1 && !all.front().title.isEmpty() ? std::optional(all.front())
                                                               : std::nullopt;
    };
    ASSERT_TRUE(eventually([&] { return described(program.window) && titled(); }))
        << "neither the panel nor what is ours";
    EXPECT_EQ(titled()->title, QStringLiteral("m\u00fc.txt"));
    const QRectF bounds = described(program.window)->bounds;
    EXPECT_EQ(QRectF(titled()->frame), bounds.adjusted(5, 7, -6, -8)) << "without its shadow";
}

TEST_F(WindowList, looksThroughFramesForTheirClient) {
    const ForeignProgram editor(QStringLiteral("Editor"));
    if (client.windowManagerRuns())
        GTEST_SKIP() << "a window manager makes the frames here";
    const auto frame = client.create({.place = {200, 20, 160, 140}, .overrideRedirect = true});
    client.reparent(editor.window, frame);
    client.map(frame);
    client.sync();
    const auto isEditors = [&](X11WindowServer &by) {
        for (const auto &window : by.listWindows())
            if (window.number == frame)
                return window.ownerName == QStringLiteral("Editor") &&
                       window.ownerPid == editor.pid() && window.layer == 0;
        return false;
    };
    EXPECT_TRUE(eventually([&] { return isEditors(*server); })) << "framed before our eyes";
    EXPECT_FALSE(described(editor.window)) << "the client is no window of its own any more";

    auto obstacle = Obstacle::NoDisplay;
    const auto later = X11WindowServer::create({}, obstacle);
    EXPECT_EQ(later->listWindows().front().ownerName, QStringLiteral("Editor"))
        << "framed before we came";

    client.reparent(editor.window, client.root());
    client.sync();
    EXPECT_TRUE(eventually([&] {
        return described(editor.window) && described(frame) &&
               described(editor.window)->ownerName == QStringLiteral("Editor") &&
               described(frame)->ownerName == ours;
    })) << "set free";
}

TEST_F(WindowList, knowsOurWindowsInAWindowManagersFrames) {
    if (!client.windowManagerRuns())
        GTEST_SKIP() << "no window manager here";
    const ForeignProgram editor(QStringLiteral("Editor"));
    const auto window = client.show({.place = {250, 40, 200, 150}});
    client.sync();
    const auto named = [&](const QString &name, std::int64_t pid) {
        const auto list = server->listWindows();
        return std::ranges::count_if(list, [&](const auto &entry) {
            return entry.ownerName == name && entry.ownerPid == pid && entry.layer == 0;
        });
    };
    EXPECT_TRUE(eventually([&] {
        return named(ours, getpid()) == 1 && named(QStringLiteral("Editor"), editor.pid()) == 1;
    }));
    EXPECT_FALSE(described(window)) << "the list holds frames";
    client.destroy(window);
    client.sync();
    EXPECT_TRUE(eventually([&] { return named(ours, getpid()) == 0; }));
}

TEST(WindowServerReason, saysWhatThisDisplayLacksOrNothing) {
    const std::map<QString, Obstacle> obstacles{
        {QStringLiteral("NO_COMPOSITE"), Obstacle::NoComposite},
        {QStringLiteral("MISSING_EXTENSION"), Obstacle::MissingExtension}};
    const QString name = qEnvironmentVariable("TOVAREL_EXPECTED_REASON");
    std::optional<Obstacle> expected;
    if (!name.isEmpty())
        expected = obstacles.at(name);
    const auto server = makeWindowServer();
    EXPECT_EQ(server->obstacle(), expected);
    EXPECT_EQ(server->capabilities().canLeaveOut, !expected);
    EXPECT_EQ(server->listWindows().empty(), expected.has_value());
}

TEST(WindowServerReason, isGivenInAWaylandSessionAndWithoutADisplay) {
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_EQ(makeWindowServer()->obstacle(), Obstacle::WaylandSession);
    qunsetenv("WAYLAND_DISPLAY");
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":nonsense");
    const auto server = makeWindowServer();
    qputenv("DISPLAY", display);
    EXPECT_EQ(server->obstacle(), Obstacle::NoDisplay);
    EXPECT_FALSE(server->composite({}));
}
