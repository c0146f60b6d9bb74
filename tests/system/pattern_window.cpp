// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// A window over the whole desktop, beneath everything else, in which every place looks different
// from its neighbours: a picture cut out of it tells to the pixel where it was cut
// (tests/system/region_test.py knows the colours).
//
//   pattern_window [BLOCK]
//
// Blocks of BLOCK by BLOCK pixels have one colour each, so that a grab that is scaled down by BLOCK
// still holds exact colours. A line on standard output says that the window is on the screen. The
// program runs until it is ended.
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

/// The colour of a block, of which counter-parts to the right and below differ in every channel.
std::uint32_t colour(unsigned column, unsigned row) {
    const std::uint32_t red = (37 * column + 11 * row) & 0xff;
    const std::uint32_t green = (5 * column + 73 * row) & 0xff;
    const std::uint32_t blue = (column ^ row) & 0xff;
    return red << 16 | green << 8 | blue;
}

/// A row at a time: requests have a largest size.
void draw(xcb_connection_t *connection, const xcb_screen_t &screen, xcb_pixmap_t pixmap,
          unsigned block) {
    const xcb_gcontext_t gc = xcb_generate_id(connection);
    xcb_create_gc(connection, gc, pixmap, 0, nullptr);
    std::vector<std::uint32_t> line(screen.width_in_pixels);
    for (unsigned y = 0; y < screen.height_in_pixels; ++y) {
        for (unsigned x = 0; x < line.size(); ++x)
            line[x] = colour(x / block, y / block);
        xcb_put_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, gc, screen.width_in_pixels, 1,
                      0, static_cast<std::int16_t>(y), 0, screen.root_depth,
                      static_cast<std::uint32_t>(line.size() * sizeof(line[0])),
                      reinterpret_cast<const std::uint8_t *>(line.data()));
    }
}

} // namespace

int main(int argc, char **argv) {
    const auto block = static_cast<unsigned>(argc > 1 ? std::max(1, std::atoi(argv[1])) : 1);
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection))
        return EXIT_FAILURE;
    const xcb_screen_t &screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_pixmap_t pixmap = xcb_generate_id(connection);
    xcb_create_pixmap(connection, screen.root_depth, pixmap, screen.root, screen.width_in_pixels,
                      screen.height_in_pixels);
    draw(connection, screen, pixmap, block);
    const xcb_window_t window = xcb_generate_id(connection);
    // The server itself draws a background wherever the window comes to light; no window manager
    // is to frame or move it.
    const std::uint32_t values[] = {pixmap, 1};
    xcb_create_window(connection, screen.root_depth, window, screen.root, 0, 0,
                      screen.width_in_pixels, screen.height_in_pixels, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual,
                      XCB_CW_BACK_PIXMAP | XCB_CW_OVERRIDE_REDIRECT, values);
    const std::uint32_t below = XCB_STACK_MODE_BELOW;
    xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &below);
    xcb_map_window(connection, window);
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    std::puts("shown");
    std::fflush(stdout);
    while (xcb_generic_event_t *event = xcb_wait_for_event(connection))
        std::free(event);
    return EXIT_SUCCESS;
}
