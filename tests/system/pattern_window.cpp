// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
//
// A window over the whole desktop, beneath everything else, in which every place looks different
// from its neighbours: a picture cut out of it tells to the pixel where it was cut
// (tests/system/region_screen.py knows the colours).
//
//   pattern_window [BLOCK]
//
// Blocks of BLOCK by BLOCK pixels have one colour each, so that a grab that is scaled down by BLOCK
// still holds exact colours. A line on standard output says that the window is on the screen. The
// program runs until it is ended.
#include "tests/support/x_client.h"

#include <algorithm>
#include <cstdio>

namespace {

/// The colour of a block, of which counter-parts to the right and below differ in every channel.
std::uint32_t colour(unsigned column, unsigned row) {
    const std::uint32_t red = (37 * column + 11 * row) & 0xff;
    const std::uint32_t green = (5 * column + 73 * row) & 0xff;
    const std::uint32_t blue = (column ^ row) & 0xff;
    return red << 16 | green << 8 | blue;
}

} // namespace

int main(int argc, char **argv) {
    const auto block = static_cast<unsigned>(argc > 1 ? std::max(1, std::atoi(argv[1])) : 1);
    XClient client;
    const QRect desktop = client.desktop();
    const auto pixmap = client.pixmap(desktop.size());
    const auto context = client.contextFor(pixmap);
    // A row at a time: requests have a largest size.
    std::vector<std::uint32_t> line(static_cast<std::size_t>(desktop.width()));
    for (unsigned y = 0; y < static_cast<unsigned>(desktop.height()); ++y) {
        for (unsigned x = 0; x < line.size(); ++x)
            line[x] = colour(x / block, y / block);
        xcb_put_image(client.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context,
                      static_cast<std::uint16_t>(line.size()), 1, 0, static_cast<std::int16_t>(y),
                      0, 24, static_cast<std::uint32_t>(line.size() * sizeof(line[0])),
                      reinterpret_cast<const std::uint8_t *>(line.data()));
    }
    // The server itself draws a background wherever the window comes to light; no window manager
    // is to frame or move it.
    const auto window = client.create({.place = desktop, .overrideRedirect = true});
    xcb_change_window_attributes(client.get(), window, XCB_CW_BACK_PIXMAP, &pixmap);
    client.restack(window, XCB_STACK_MODE_BELOW);
    client.map(window);
    client.sync();
    std::puts("shown");
    std::fflush(stdout);
    while (const x11::Event event{xcb_wait_for_event(client.get())})
        continue;
    return EXIT_SUCCESS;
}
