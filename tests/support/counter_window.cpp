// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// A window with a known changing picture, which can be read back from a frame and from a GIF with a
// palette of its own (tests/support/counter_picture.h). A picture is drawn aside and shown by one
// request, so that no grab can see half of it.
//
//   counter_window [--at X,Y] [--size WxH] [--rate N] [--unmanaged]
//
// The counter grows by --rate a second, by the clock and not by the drawings: a window that is
// slow skips numbers. --unmanaged asks for no frame and no placing by the window manager. Where the
// window lies on the screen, without its frame, is written to standard output whenever it changes:
// a line "X Y WIDTH HEIGHT". The program runs until it is ended.
#include "tests/support/counter_options.h"
#include "tests/support/counter_picture.h"
#include "tests/support/x_client.h"

#include <poll.h>

#include <chrono>
#include <cstdio>

namespace {

class CounterWindow {
public:
    explicit CounterWindow(const CounterOptions &options)
        : place_(options.x, options.y, options.width, options.height),
          window_(client_.create({.place = place_, .overrideRedirect = options.unmanaged})),
          picture_(client_.pixmap(place_.size())) {
        const std::uint32_t events = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(client_.get(), window_, XCB_CW_EVENT_MASK, &events);
        client_.setText(window_, XCB_ATOM_WM_NAME, "counter");
        client_.setClass(window_, QByteArray("counter\0Counter", 16));
        // The place was chosen by the user (WM_NORMAL_HINTS, ICCCM 4.1.2.3: flag USPosition, place,
        // size): the window manager would choose another otherwise.
        std::vector<std::uint32_t> hints(18);
        hints[0] = 1;
        hints[1] = static_cast<std::uint32_t>(options.x);
        hints[2] = static_cast<std::uint32_t>(options.y);
        client_.setProperty(window_, "WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, hints);
        client_.map(window_);
    }

    void draw(std::uint32_t number) {
        number_ = number;
        for (const auto &[place, colour] : counterPicture(number, place_.size()))
            client_.fill(picture_, place, colour);
        show();
    }

    /// Answers what the server asked for; false when the connection is gone.
    bool drainEvents() {
        while (const x11::Event event{xcb_poll_for_event(client_.get())}) {
            const int type = event->response_type & 0x7f;
            if (type == XCB_EXPOSE)
                show();
            else if (type == XCB_MAP_NOTIFY || type == XCB_CONFIGURE_NOTIFY)
                tellPlace();
        }
        return xcb_connection_has_error(client_.get()) == 0;
    }

    std::uint32_t number() const { return number_; }
    int descriptor() const { return xcb_get_file_descriptor(client_.get()); }

private:
    /// The place in a configure event counts from the frame, if there is one: ask for the true one.
    void tellPlace() {
        const x11::Reply<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
            client_.get(), xcb_translate_coordinates(client_.get(), window_, client_.root(), 0, 0),
            nullptr));
        if (place)
            std::printf("%d %d %d %d\n", place->dst_x, place->dst_y, place_.width(),
                        place_.height());
        std::fflush(stdout);
    }

    void show() {
        client_.copy(picture_, window_, place_.size());
        xcb_flush(client_.get());
    }

    XClient client_;
    QRect place_;
    xcb_window_t window_;
    xcb_pixmap_t picture_;
    std::uint32_t number_ = 0;
};

} // namespace

int main(int argc, char **argv) {
    using namespace std::chrono;
    const CounterOptions options = parse(argc, argv, {.width = 360, .height = 200});
    CounterWindow window(options);
    window.draw(0);
    const auto start = steady_clock::now();
    pollfd events{window.descriptor(), POLLIN, 0};
    while (window.drainEvents()) {
        const duration<double> passed = steady_clock::now() - start;
        const auto due = static_cast<std::uint32_t>(passed.count() * options.rate);
        if (due != window.number())
            window.draw(due);
        const duration<double> next((window.number() + 1) / options.rate);
        poll(&events, 1, std::max(0, static_cast<int>(ceil<milliseconds>(next - passed).count())));
    }
    return 1;
}
