// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT

// What a tick of the window server costs, beside one shared-memory fetch of the root window on the
// same display: processor time of this program and of the display server together, the scene's own
// cost taken off. One row of the table for each scene, with our window away or over a quarter of
// the desktop; the status is 1 when a picture is wrong or a ratio is above its bar. To be run by
// bench/run, which gives it a display of its own, with or without a compositing manager.

#include "bench/processor_time.h"
#include "bench/short_form.h"
#include "platform/x11/x11_window_server.h"
#include "tests/support/x_client.h"

#include <QCoreApplication>

#include <xcb/composite.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int windowCount = 6;
int repetitions = 5;
int ticks = 60;
int warmUpTicks = 10;
bool barsCount = true;

enum class Scene : char { Everything = 'e', Rectangle = 'r', Nothing = 'n' };

struct Case {
    Scene scene;
    bool covered; ///< our window is over a quarter of the desktop
    const char *name;
    double bar; ///< highest ratio
};
constexpr std::array cases{Case{Scene::Everything, false, "everything changing", 1.3},
                           // Of a fetch with all windows kept apart: nobody can have what lies
                           // beneath a window for less.
                           Case{Scene::Everything, true, "the same, beneath us too", 1.8},
                           Case{Scene::Rectangle, false, "200x100 changing", 0.25},
                           Case{Scene::Nothing, false, "nothing changing", 0.03}};

/// A compositing manager's own work at the same time is only told.
constexpr double barOfComposited = 1.6;

/// So long the window server expects windows of ours to come to lie on others after it was made.
constexpr std::chrono::milliseconds startLasts{2300};

/// A region of a desktop on which everything changes, against the whole of it, what the server
/// spends on keeping the windows apart taken off both.
constexpr QRect region(1700, 1000, 320, 240);
constexpr double regionBar = 0.1;

/// Another process with six overlapping windows that together cover the desktop. It draws when it
/// is told to, so that every measured tick meets exactly one change.
class ScenePainter {
public:
    ScenePainter() {
        if (pipe(orders_.data()) != 0 || pipe(answers_.data()) != 0)
            std::abort();
        process_ = fork();
        if (process_ == 0) {
            close(orders_[1]);
            paint();
            _exit(0);
        }
        close(orders_[0]);
        char ready = 0;
        if (read(answers_[0], &ready, 1) != 1)
            std::abort();
    }

    ~ScenePainter() {
        close(orders_[1]);
        waitpid(process_, nullptr, 0);
    }

    /// Returns when the scene's change is on the display.
    void change(Scene scene) {
        char answer = 0;
        if (write(orders_[1], &scene, 1) != 1 || read(answers_[0], &answer, 1) != 1)
            std::abort();
    }

private:
    struct Window {
        xcb_window_t id;
        xcb_gcontext_t context;
        QSize size;
    };

    void paint() {
        XClient client;
        std::vector<Window> windows;
        const QSize desktop = client.desktop().size();
        const QSize size(desktop.width() * 2 / 5, desktop.height() * 3 / 5);
        for (int i = 0; i < windowCount; ++i) {
            const int x = i % 3 * (desktop.width() - size.width()) / 2;
            const int y = i / 3 * (desktop.height() - size.height());
            windows.push_back(open(client, QRect(QPoint(x, y), size), i));
        }
        client.sync();
        char order = 0;
        for (unsigned turn = 0;
             write(answers_[1], &order, 1) == 1 && read(orders_[0], &order, 1) == 1; ++turn) {
            if (order == static_cast<char>(Scene::Everything))
                for (const auto &window : windows)
                    show(client, window, QRect(QPoint(), window.size), turn);
            if (order == static_cast<char>(Scene::Rectangle))
                show(client, windows.back(), {50, 60, 200, 100}, turn);
            client.sync();
        }
    }

    // A small tile, so that the scene itself does not sweep the processor's caches.
    static Window open(XClient &client, const QRect &place, int number) {
        const Window window{.id = client.show({.place = place, .overrideRedirect = true}),
                            .context = xcb_generate_id(client.get()),
                            .size = place.size()};
        const xcb_pixmap_t tile = xcb_generate_id(client.get());
        xcb_create_pixmap(client.get(), 24, tile, window.id, 96, 96);
        client.drawPattern(tile, {0, 0, 96, 96}, static_cast<std::uint32_t>(number + 1));
        const std::array<std::uint32_t, 2> values{XCB_FILL_STYLE_TILED, tile};
        xcb_create_gc(client.get(), window.context, window.id, XCB_GC_FILL_STYLE | XCB_GC_TILE,
                      values.data());
        return window;
    }

    static void show(XClient &client, const Window &window, const QRect &where, unsigned turn) {
        const std::uint32_t shift = turn * 13 % 96;
        xcb_change_gc(client.get(), window.context, XCB_GC_TILE_STIPPLE_ORIGIN_X, &shift);
        const xcb_rectangle_t r{
            static_cast<std::int16_t>(where.x()), static_cast<std::int16_t>(where.y()),
            static_cast<std::uint16_t>(where.width()), static_cast<std::uint16_t>(where.height())};
        xcb_poly_fill_rectangle(client.get(), window.id, window.context, 1, &r);
    }

    std::array<int, 2> orders_{}, answers_{};
    pid_t process_ = 0;
};

/// The floor: the whole root window into shared memory, once a tick.
class RootFetch {
public:
    RootFetch() : connection_(x11::Connection::open()) {
        const auto &screen = connection_->screen();
        const int id =
            shmget(IPC_PRIVATE, std::size_t{4} * screen.width_in_pixels * screen.height_in_pixels,
                   IPC_CREAT | 0600);
        memory_ = shmat(id, nullptr, 0);
        segment_ = connection_->newId();
        connection_->succeeded(xcb_shm_attach_checked(connection_->get(), segment_,
                                                      static_cast<std::uint32_t>(id), 0));
        shmctl(id, IPC_RMID, nullptr);
    }
    ~RootFetch() { shmdt(memory_); }

    void operator()() {
        const auto &screen = connection_->screen();
        if (!connection_->reply<xcb_shm_get_image_reply>(xcb_shm_get_image(
                connection_->get(), connection_->root(), 0, 0, screen.width_in_pixels,
                screen.height_in_pixels, ~0u, XCB_IMAGE_FORMAT_Z_PIXMAP, segment_, 0)))
            std::abort();
    }

private:
    std::unique_ptr<x11::Connection> connection_;
    xcb_shm_seg_t segment_ = 0;
    void *memory_ = nullptr;
};

/// All windows of the desktop in memory of their own, as those beneath ours are, for as long as the
/// connection lives.
std::unique_ptr<x11::Connection> keepApart() {
    auto connection = x11::Connection::open();
    xcb_composite_redirect_subwindows(connection->get(), connection->root(),
                                      XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    connection->roundTrip();
    return connection;
}

/// What the capture does: the list, the grab of all windows in it, the last picture held.
class Tick {
public:
    Tick() {
        auto obstacle = Obstacle::NoDisplay;
        server_ = X11WindowServer::create({}, obstacle);
        if (!server_)
            std::abort();
    }

    void operator()() {
        std::vector<std::uint32_t> numbers;
        for (const auto &window : server_->listWindows())
            if (window.number != without)
                numbers.push_back(window.number);
        picture = server_->composite(numbers, part);
    }

    /// Ticks until the window server has settled down.
    void settle() {
        const auto end = std::chrono::steady_clock::now() + startLasts;
        while (std::chrono::steady_clock::now() < end) {
            (*this)();
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
    }

    std::uint32_t without = 0;
    std::optional<QRect> part;
    std::optional<Image> picture;

private:
    std::unique_ptr<X11WindowServer> server_;
};

/// Processor time of one tick in milliseconds, the scene's included.
double cost(ScenePainter &painter, Scene scene, const std::function<void()> &tick) {
    for (int i = 0; i < warmUpTicks; ++i) {
        painter.change(scene);
        tick();
    }
    const double before = processorSeconds();
    for (int i = 0; i < ticks; ++i) {
        painter.change(scene);
        tick();
    }
    return (processorSeconds() - before) * 1000.0 / ticks;
}

/// The lowest of several: whatever else runs on the machine only adds to it.
struct Costs {
    double lowest = std::numeric_limits<double>::max();

    void add(double milliseconds) { lowest = std::min(lowest, milliseconds); }
};

/// The quarter of the desktop in its middle.
QRect quarterOf(const QRect &desktop) {
    return {desktop.width() / 4, desktop.height() / 4, desktop.width() / 2, desktop.height() / 2};
}

/// Whether the picture is the screen's where our window cannot be; a compositing manager may take a
/// while to show what changed.
bool isRight(ScenePainter &painter, Scene scene, Tick &tick) {
    constexpr int mostLooks = 50;
    XClient client;
    painter.change(scene);
    client.sync();
    QRect part = tick.part.value_or(client.desktop());
    if (tick.without != 0)
        part.setHeight(quarterOf(client.desktop()).top() - 64);
    for (int look = 0; look < mostLooks; ++look) {
        tick();
        if (tick.picture && tick.picture->toQImage().copy(part) == client.screen().copy(part))
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

bool measureRegion(ScenePainter &painter, const std::string &size) {
    Costs scenes, wholes, regions;
    bool right = true;
    for (int i = 0; i < repetitions; ++i) {
        scenes.add(cost(painter, Scene::Everything, [] {}));
        Tick tick;
        tick.settle();
        wholes.add(cost(painter, Scene::Everything, std::ref(tick)));
        tick.part = region;
        regions.add(cost(painter, Scene::Everything, std::ref(tick)));
        right = right && isRight(painter, Scene::Everything, tick);
    }
    const double ofRegion = regions.lowest - scenes.lowest, ofWhole = wholes.lowest - scenes.lowest;
    const double ratio = ofRegion / ofWhole;
    std::printf(
        "A region of 320x240 against the whole of %s, everything changing: %.3f of %.3f ms, "
        "ratio %.3f, bar %.2f %s\n",
        size.c_str(), ofRegion, ofWhole, ratio, regionBar,
        !right              ? "WRONG PIXELS"
        : ratio > regionBar ? "MISSED"
                            : "ok");
    return right && (ratio <= regionBar || !barsCount);
}

bool measure(ScenePainter &painter, const Case &c, const std::string &size) {
    Costs scenes, fetches, fetchesApart, ticksOfOurs;
    bool right = true;
    XClient client;
    const bool composited = client.compositingManagerRuns();
    const bool keepsApart = c.covered && !composited;
    const double bar = composited && c.bar > 1 ? barOfComposited : c.bar;
    for (int i = 0; i < repetitions; ++i) {
        xcb_window_t ours = XCB_NONE;
        if (c.covered)
            ours = client.show({.place = quarterOf(client.desktop()), .overrideRedirect = true});
        client.sync();
        scenes.add(cost(painter, c.scene, [] {}));
        {
            RootFetch fetch;
            fetches.add(cost(painter, c.scene, std::ref(fetch)));
            if (keepsApart) {
                const auto apart = keepApart();
                fetchesApart.add(cost(painter, c.scene, std::ref(fetch)));
            }
        }
        {
            Tick tick;
            tick.without = ours;
            tick.settle();
            ticksOfOurs.add(cost(painter, c.scene, std::ref(tick)));
            right = right && isRight(painter, c.scene, tick);
        }
        if (ours != XCB_NONE)
            client.destroy(ours);
    }
    const double ofPlainFetch = fetches.lowest - scenes.lowest,
                 ofTick = ticksOfOurs.lowest - scenes.lowest;
    double ofFetch = ofPlainFetch;
    if (keepsApart) {
        ofFetch = fetchesApart.lowest - scenes.lowest;
        std::printf("| %-9s | %-24s | %-3s | %8.3f | %8.3f | %6.2f |      | told |\n", size.c_str(),
                    "a fetch, all kept apart", "no", ofPlainFetch, ofFetch, ofFetch / ofPlainFetch);
    }
    const double ratio = ofTick / ofFetch;
    std::printf("| %-9s | %-24s | %-3s | %8.3f | %8.3f | %6.2f | %4.2f | %s\n", size.c_str(),
                c.name, composited ? "yes" : "no", ofFetch, ofTick, ratio, bar,
                !right        ? "WRONG PIXELS |"
                : ratio > bar ? "MISSED |"
                              : "ok |");
    std::fflush(stdout);
    return right && (ratio <= bar || !barsCount);
}

} // namespace

int main(int argc, char **argv) {
    if (argc > 1 && std::string(argv[1]) == "--header") {
        std::puts(
            "| desktop   | scene                    | CM  | fetch ms |  tick ms |  ratio |  "
            "bar |    |\n"
            "|-----------|--------------------------|-----|----------|----------|--------|----"
            "--|----|");
        return 0;
    }
    if (isShortForm(argc, argv)) {
        repetitions = 1;
        ticks = 3;
        warmUpTicks = 1;
        barsCount = false;
    }
    ScenePainter painter; // before anything of ours talks to the display: it forks
    QCoreApplication application(argc, argv);
    const QSize desktop = XClient().desktop().size();
    const std::string size =
        std::to_string(desktop.width()) + "x" + std::to_string(desktop.height());
    bool good = true;
    for (const auto &c : cases)
        good = measure(painter, c, size) && good;
    if (QRect(QPoint(), desktop).contains(region))
        good = measureRegion(painter, size) && good;
    return good ? 0 : 1;
}
