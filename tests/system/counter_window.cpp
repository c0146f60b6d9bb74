// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// A window with a known changing picture: a counter, coded so that it can be read back from a
// frame and from a GIF with a palette of its own (tests/system/counter.py reads it), under a bar
// that moves to the right with it. A picture is drawn aside and shown by one request, so that no
// grab can see half of it.
//
//   counter_window [--at X,Y] [--size WxH] [--rate N] [--still N] [--unmanaged]
//
// The counter grows by --rate a second, by the clock and not by the drawings: a window that is
// slow skips numbers. --still shows one number for ever. --unmanaged asks for no frame and no
// placing by the window manager. Where the window lies on the screen, without its frame, is written
// to standard output whenever it changes: a line "X Y WIDTH HEIGHT". The program runs until it is
// ended.
#include <xcb/xcb.h>

#include <poll.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

/// Digits of the counter, four colours each, the least significant first; the last cell holds the
/// sum of the others, so that a covered or torn picture does not pass for a number.
constexpr int digits = 8;
constexpr int cells = digits + 1;
constexpr std::array<std::uint32_t, 4> colours{0xe00000, 0x00c000, 0x0000e0, 0xe0e000};
constexpr std::uint32_t background = 0x202020;
constexpr std::uint32_t barColour = 0xf0f0f0;
/// Steps that the bar takes from one side to the other.
constexpr std::uint32_t barSteps = 32;

struct Options {
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::uint16_t width = 360; // pixels
    std::uint16_t height = 200;
    double rate = 30; // steps a second
    long still = -1;  // the number to stay at, or negative to count
    bool unmanaged = false;
};

Options parse(int argc, char **argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view name = argv[i];
        const char *value = i + 1 < argc ? argv[i + 1] : "";
        bool good = true;
        if (name == "--unmanaged") {
            options.unmanaged = true;
            continue;
        }
        if (name == "--at")
            good = std::sscanf(value, "%hd,%hd", &options.x, &options.y) == 2;
        else if (name == "--size")
            good = std::sscanf(value, "%hux%hu", &options.width, &options.height) == 2;
        else if (name == "--rate")
            good = std::sscanf(value, "%lf", &options.rate) == 1;
        else if (name == "--still")
            good = std::sscanf(value, "%ld", &options.still) == 1;
        else
            good = false;
        if (!good) {
            std::fprintf(stderr, "counter_window: cannot read %s %s\n", argv[i], value);
            std::exit(2);
        }
        ++i;
    }
    return options;
}

class CounterWindow {
public:
    CounterWindow(xcb_connection_t *connection, const Options &options)
        : connection_(connection),
          root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root), options_(options),
          window_(xcb_generate_id(connection)), picture_(xcb_generate_id(connection)),
          pen_(xcb_generate_id(connection)) {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        const std::uint32_t values[] = {background, options.unmanaged,
                                        XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY};
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_, screen->root, options.x,
                          options.y, options.width, options.height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        setText(XCB_ATOM_WM_NAME, "counter");
        // Instance and class, each ended by a zero (ICCCM 4.1.2.5).
        setText(XCB_ATOM_WM_CLASS, std::string_view("counter\0Counter", 16));
        askForPlace();
        xcb_create_pixmap(connection, screen->root_depth, picture_, screen->root, options.width,
                          options.height);
        xcb_create_gc(connection, pen_, picture_, 0, nullptr);
        xcb_map_window(connection, window_);
    }

    void draw(std::uint32_t number) {
        number_ = number;
        const auto width = static_cast<std::uint32_t>(options_.width);
        const std::uint32_t height = options_.height;
        fill(background, 0, 0, width, height);
        const std::uint32_t barWidth = width / 8;
        fill(barColour, (width - barWidth) * (number % barSteps) / (barSteps - 1), height / 16,
             barWidth, height * 3 / 8);
        std::uint32_t sum = 0;
        for (std::uint32_t cell = 0; cell < cells; ++cell) {
            const std::uint32_t digit = cell < digits ? number >> (2 * cell) & 3U : sum & 3U;
            sum += digit;
            const std::uint32_t left = width * cell / cells;
            fill(colours[digit], left, height / 2, width * (cell + 1) / cells - left,
                 height - height / 2);
        }
        show();
    }

    /// Answers what the server asked for; false when the connection is gone.
    bool drainEvents() {
        while (xcb_generic_event_t *event = xcb_poll_for_event(connection_)) {
            const int type = event->response_type & 0x7f;
            if (type == XCB_EXPOSE)
                show();
            else if (type == XCB_MAP_NOTIFY || type == XCB_CONFIGURE_NOTIFY)
                tellPlace();
            std::free(event);
        }
        return xcb_connection_has_error(connection_) == 0;
    }

    std::uint32_t number() const { return number_; }

private:
    /// The place in a configure event counts from the frame, if there is one: ask for the true one.
    void tellPlace() {
        xcb_translate_coordinates_reply_t *place = xcb_translate_coordinates_reply(
            connection_, xcb_translate_coordinates(connection_, window_, root_, 0, 0), nullptr);
        if (!place)
            return;
        std::printf("%d %d %u %u\n", place->dst_x, place->dst_y, options_.width, options_.height);
        std::fflush(stdout);
        std::free(place);
    }

    void setText(xcb_atom_t property, std::string_view text) {
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, property, XCB_ATOM_STRING,
                            8, static_cast<std::uint32_t>(text.size()), text.data());
    }

    /// Tells the window manager that the place was chosen by the user (WM_NORMAL_HINTS, ICCCM
    /// 4.1.2.3: flag USPosition, place, size); it would choose another otherwise.
    void askForPlace() {
        std::array<std::int32_t, 18> hints{};
        hints[0] = 1;
        hints[1] = options_.x;
        hints[2] = options_.y;
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS,
                            XCB_ATOM_WM_SIZE_HINTS, 32, hints.size(), hints.data());
    }

    void fill(std::uint32_t colour, std::uint32_t x, std::uint32_t y, std::uint32_t width,
              std::uint32_t height) {
        xcb_change_gc(connection_, pen_, XCB_GC_FOREGROUND, &colour);
        const xcb_rectangle_t box{static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                                  static_cast<std::uint16_t>(width),
                                  static_cast<std::uint16_t>(height)};
        xcb_poly_fill_rectangle(connection_, picture_, pen_, 1, &box);
    }

    void show() {
        xcb_copy_area(connection_, picture_, window_, pen_, 0, 0, 0, 0, options_.width,
                      options_.height);
        xcb_flush(connection_);
    }

    xcb_connection_t *connection_;
    xcb_window_t root_;
    Options options_;
    xcb_window_t window_;
    xcb_pixmap_t picture_;
    xcb_gcontext_t pen_;
    std::uint32_t number_ = 0;
};

} // namespace

int main(int argc, char **argv) {
    using namespace std::chrono;
    const Options options = parse(argc, argv);
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection)) {
        std::fputs("counter_window: no display\n", stderr);
        return 1;
    }
    CounterWindow window(connection, options);
    const bool counting = options.still < 0 && options.rate > 0;
    window.draw(counting ? 0 : static_cast<std::uint32_t>(options.still));

    const auto start = steady_clock::now();
    pollfd events{xcb_get_file_descriptor(connection), POLLIN, 0};
    while (window.drainEvents()) {
        int wait = -1; // milliseconds; for ever
        if (counting) {
            const duration<double> passed = steady_clock::now() - start;
            const auto due = static_cast<std::uint32_t>(passed.count() * options.rate);
            if (due != window.number())
                window.draw(due);
            const duration<double> next((window.number() + 1) / options.rate);
            wait = static_cast<int>(ceil<milliseconds>(next - passed).count());
        }
        poll(&events, 1, wait < -1 ? 0 : wait);
    }
    return 1;
}
