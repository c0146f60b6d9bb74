// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/system/unrest.h"
#include "tests/system/window_server_fixture.h"

#include <QProcess>
#include <QScopeGuard>

#include <xcb/res.h>

#include <atomic>
#include <deque>
#include <map>
#include <span>
#include <string>

// Everything that may happen to a desktop at once, under grabs at the highest rate.

namespace {

using namespace std::chrono_literals;

constexpr int allActs = 10'000;
constexpr auto tick = 16'667us;       // 60 grabs a second
constexpr std::size_t heldGrabs = 30; // as a recording holds them
constexpr unsigned usualSeed = 20260701;

class WindowFault : public WindowServerFixture {
protected:
    /// The first resource number of every client that the display has.
    std::set<std::uint32_t> clients() {
        const x11::Reply<xcb_res_query_clients_reply_t> reply(xcb_res_query_clients_reply(
            client.get(), xcb_res_query_clients(client.get()), nullptr));
        std::set<std::uint32_t> bases;
        for (const auto &each :
             std::span(xcb_res_query_clients_clients(reply.get()), reply->num_clients))
            bases.insert(each.resource_base);
        return bases;
    }

    std::string nameOf(xcb_atom_t atom) {
        const x11::Reply<xcb_get_atom_name_reply_t> reply(
            xcb_get_atom_name_reply(client.get(), xcb_get_atom_name(client.get(), atom), nullptr));
        return {xcb_get_atom_name_name(reply.get()), reply->name_len};
    }

    /// How many resources of each kind a client has in the server.
    std::map<std::string, std::uint32_t> resources(std::uint32_t base) {
        const x11::Reply<xcb_res_query_client_resources_reply_t> reply(
            xcb_res_query_client_resources_reply(
                client.get(), xcb_res_query_client_resources(client.get(), base), nullptr));
        std::map<std::string, std::uint32_t> counts;
        for (const auto &each :
             std::span(xcb_res_query_client_resources_types(reply.get()), reply->num_types))
            counts[nameOf(each.resource_type)] = each.count;
        return counts;
    }

    /// Adds a monitor of the upper left quarter, or takes it away again.
    void setMonitor(bool present) {
        if (present == hasMonitor)
            return;
        hasMonitor = present;
        const QSize half = client.desktop().size() / 2;
        const QString place =
            QStringLiteral("%1/100x%2/100+0+0").arg(half.width()).arg(half.height());
        const QString name = QStringLiteral("quarter");
        const int status = QProcess::execute(
            QStringLiteral("xrandr"), present ? QStringList{QStringLiteral("--setmonitor"), name,
                                                            place, QStringLiteral("none")}
                                              : QStringList{QStringLiteral("--delmonitor"), name});
        EXPECT_EQ(status, 0) << "xrandr";
    }

    /// Starts or ends picom, or runs the command by which the window manager under test switches
    /// its own compositing on or off.
    void setCompositing(bool on) {
        composited = on;
        if (const char *command =
                std::getenv(on ? "TOVAREL_COMPOSITING_ON" : "TOVAREL_COMPOSITING_OFF")) {
            compositor.startCommand(QString::fromUtf8(command));
            EXPECT_TRUE(compositor.waitForFinished()) << command;
        } else if (on) {
            compositor.start(QStringLiteral("picom"),
                             {QStringLiteral("--backend"), QStringLiteral("xrender"),
                              QStringLiteral("--config"), QStringLiteral("/dev/null")});
            EXPECT_TRUE(compositor.waitForStarted()) << "picom";
        } else {
            compositor.kill();
            compositor.waitForFinished();
        }
    }

    /// Holds more grabs than there are pictures that take turns, so that all of them exist.
    void useAllPictures() {
        std::vector<Image> held;
        for (int i = 0; i < 8; ++i) {
            client.setBackgroundPixmap(i % 2 == 0);
            ASSERT_TRUE(looksLikeReference());
            held.push_back(*server->composite(numbers()));
        }
    }

    QProcess compositor;
    bool composited = false;
    bool hasMonitor = false;
};

} // namespace

TEST_F(WindowFault, tenThousandEventsLeaveTheRightPictureAndNothingInTheServer) {
    const unsigned seed = seedOfThisRun(usualSeed);
    SCOPED_TRACE("TOVAREL_TEST_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    setCompositing(false);
    ASSERT_TRUE(eventually([this] { return !client.compositingManagerRuns(); }));
    std::set<std::uint32_t> withServer;
    // A window manager may bring clients of its own a little later.
    do {
        withServer = clients();
        std::this_thread::sleep_for(300ms);
    } while (withServer != clients());
    server.reset();
    ASSERT_TRUE(eventually([&] { return clients().size() < withServer.size(); }));
    const auto others = clients();
    auto obstacle = Obstacle::NoDisplay;
    server = X11WindowServer::create({}, obstacle);
    useAllPictures();
    std::vector<std::uint32_t> ours;
    for (const auto base : clients())
        if (!others.contains(base))
            ours.push_back(base);
    ASSERT_EQ(ours.size(), 1u);
    const auto before = resources(ours.front());
    const QSize desktop = client.desktop().size();

    // A window manager that is to switch its compositing has to get to it.
    const unsigned longestRest = std::getenv("TOVAREL_COMPOSITING_ON") ? 100 : 20;
    auto vandal = std::make_unique<XClient>();
    std::atomic<int> acts = 0;
    std::atomic<bool> go = true;
    std::thread thread([&vandal, &acts, &go, seed, longestRest] {
        std::mt19937 pace(seed);
        for (Unrest unrest(*vandal, seed); go && acts < allActs;) {
            for (auto burst = pace() % 40; burst > 0; --burst, ++acts)
                unrest.act();
            vandal->sync();
            std::this_thread::sleep_for(std::chrono::milliseconds(pace() % longestRest));
        }
    });
    const auto end = qScopeGuard([&] {
        go = false;
        if (thread.joinable())
            thread.join();
        setCompositing(false);
    });

    std::deque<Image> held;
    auto due = std::chrono::steady_clock::now();
    int grabs = 0;
    int composedGrabs = 0;
    for (; acts < allActs; ++grabs) {
        const auto picture = server->composite(numbers());
        ASSERT_TRUE(picture) << "grab " << grabs;
        held.push_back(*picture);
        if (held.size() > heldGrabs)
            held.pop_front();
        if (random() % 40 == 0)
            setCompositing(!composited);
        composedGrabs += client.compositingManagerRuns() ? 1 : 0;
        if (random() % 40 == 0)
            setMonitor(!hasMonitor);
        if (random() % 40 == 0)
            client.resizeDesktop(random() % 2 == 0 ? desktop
                                                   : QSize(300 + static_cast<int>(random() % 300),
                                                           200 + static_cast<int>(random() % 200)));
        client.sync();
        std::this_thread::sleep_until(due += tick);
    }
    thread.join();
    setCompositing(false);
    ASSERT_TRUE(eventually([this] { return !client.compositingManagerRuns(); }));
    std::printf("%d events, %d grabs, %d of them beside a compositing manager\n", acts.load(),
                grabs, composedGrabs);
    EXPECT_GT(composedGrabs, 0);
    EXPECT_LT(composedGrabs, grabs);
    EXPECT_TRUE(looksLikeReference());
    client.resizeDesktop(desktop);
    EXPECT_TRUE(looksLikeReference());

    vandal.reset();
    held.clear();
    setMonitor(false);
    useAllPictures();
    // A window manager may have had windows then that it has no longer.
    for (const auto &[kind, count] : resources(ours.front()))
        EXPECT_LE(count, before.contains(kind) ? before.at(kind) : 0) << kind;
}
