// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT

// What it costs to show the pointer: processor time of a tick of a recording, this program's and
// the display server's together, over a desktop on which nothing changes while the pointer moves,
// with the pointer and without, and how much memory a frame takes with it. The status is 1 when a
// frame is wrong or a bar is missed. To be run by bench/run, which gives it a display of its own.

#include "bench/processor_time.h"
#include "bench/short_form.h"
#include "platform/image/tile_store.h"
#include "platform/x11/x11_window_server.h"
#include "record/marks/marks.h"
#include "tests/support/x_client.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

int repetitions = 5;
int ticks = 600; // ten seconds at 60 a second
bool barsCount = true;

constexpr double costBar = 0.15;         // milliseconds a tick
constexpr double memoryBar = 6.0 * 1024; // bytes a frame

/// A desktop as people have it: windows with text, one beside the other.
void showDesktop(XClient &client) {
    const QSize size = client.desktop().size();
    const int width = size.width() / 3, height = size.height() / 2;
    for (int number = 0; number < 6; ++number) {
        const QPoint corner(number % 3 * width, number / 3 * height);
        const xcb_window_t window =
            client.show({.place = {corner, QSize(width, height)}, .overrideRedirect = true});
        client.fill(window, {0, 0, width, height}, number % 2 == 0 ? 0xfff4f4f4u : 0xff202428u);
        for (int line = 0; line < height / 18; ++line)
            for (int word = 0; word < width / 40 - 1; ++word)
                client.fill(window,
                            {12 + 40 * word, 8 + 18 * line, 8 + (line * 7 + word * 5) % 26, 9},
                            number % 2 == 0 ? 0xff303030u : 0xffb0c4d0u);
    }
    client.sync();
}

/// A recording's tick: list, grab, what is drawn over it, and the frame kept.
class Recording {
public:
    explicit Recording(bool withPointer) {
        auto obstacle = Obstacle::NoDisplay;
        server_ = X11WindowServer::create({}, obstacle);
        if (!server_)
            std::abort();
        if (withPointer)
            watch_ = server_->watchPointer();
    }

    void tick() {
        std::vector<std::uint32_t> numbers;
        for (const auto &window : server_->listWindows())
            numbers.push_back(window.number);
        const auto picture = server_->composite(numbers);
        if (!picture)
            std::abort();
        shown = {};
        if (watch_)
            shown.pointer = watch_->now();
        frames.push_back(
            store.keep(marks_.over(*picture, {}, shown), frames.empty() ? Image() : frames.back()));
    }

    TileStore store;
    std::vector<Image> frames;
    MarksShown shown;

private:
    std::unique_ptr<X11WindowServer> server_;
    std::unique_ptr<PointerWatch> watch_;
    Marks marks_;
};

void movePointer(XClient &client, int step) {
    const QSize size = client.desktop().size();
    xcb_warp_pointer(client.get(), XCB_NONE, client.root(), 0, 0, 0, 0,
                     static_cast<std::int16_t>(100 + step * 11 % (size.width() - 200)),
                     static_cast<std::int16_t>(100 + step * 5 % (size.height() - 200)));
    client.sync();
}

struct Measured {
    double cost;   ///< milliseconds a tick, the pointer's own movement included
    double memory; ///< bytes a frame behind the first
    bool right;
};

Measured measure(XClient &client, bool withPointer) {
    constexpr int warmUpTicks = 30;
    Recording recording(withPointer);
    for (int i = 0; i < warmUpTicks; ++i) {
        movePointer(client, i);
        recording.tick();
    }
    recording.store.waitUntilCompressed();
    const auto heldBefore = static_cast<double>(recording.store.bytesHeld());
    const double before = processorSeconds();
    for (int i = 0; i < ticks; ++i) {
        movePointer(client, i);
        recording.tick();
    }
    recording.store.waitUntilCompressed();
    const double cost = (processorSeconds() - before) * 1000 / ticks;
    const double held = static_cast<double>(recording.store.bytesHeld()) - heldBefore;
    Marks anew;
    const Image screen = Image::fromQImage(client.screen());
    const bool right =
        recording.frames.back().toQImage() == anew.over(screen, {}, recording.shown).toQImage();
    return {cost, held / ticks, right && recording.shown.pointer.has_value() == withPointer};
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char **argv) {
    if (isShortForm(argc, argv)) {
        repetitions = 1;
        ticks = 20;
        barsCount = false;
    }
    QCoreApplication application(argc, argv);
    XClient client;
    showDesktop(client);
    std::vector<double> without, with, memory;
    bool right = true;
    for (int i = 0; i < repetitions; ++i) {
        const Measured plain = measure(client, false);
        const Measured shown = measure(client, true);
        without.push_back(plain.cost);
        with.push_back(shown.cost);
        memory.push_back(shown.memory);
        right = right && plain.right && shown.right;
    }
    const double more = median(with) - median(without);
    const bool kept = more <= costBar && median(memory) <= memoryBar;
    std::printf("With the pointer %.3f ms a tick, without %.3f: %.3f more, bar %.2f; "
                "%.0f bytes a frame, bar %.0f %s\n",
                median(with), median(without), more, costBar, median(memory), memoryBar,
                !right ? "WRONG PIXELS"
                : kept ? "ok"
                       : "MISSED");
    return right && (kept || !barsCount) ? 0 : 1;
}
