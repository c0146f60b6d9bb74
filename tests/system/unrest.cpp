// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/system/unrest.h"

#include <cstdlib>

void Unrest::act() {
    if (windows_.size() < 4 || (windows_.size() < 12 && below(8) == 0)) {
        add();
        return;
    }
    const auto at = static_cast<std::size_t>(below(static_cast<int>(windows_.size())));
    const auto window = windows_[at];
    const auto seed = static_cast<std::uint32_t>(random_());
    switch (below(15)) {
    case 0:
        client_.destroy(window);
        windows_.erase(windows_.begin() + static_cast<std::ptrdiff_t>(at));
        break;
    case 1:
    case 2:
        client_.moveResize(window, place());
        break;
    case 3:
        client_.restack(window, XCB_STACK_MODE_ABOVE);
        break;
    case 4:
        client_.restack(window, XCB_STACK_MODE_BELOW, other(window));
        break;
    case 5:
        client_.circulate(below(2) == 0);
        break;
    case 6:
        client_.unmap(window);
        break;
    case 7:
        client_.map(window);
        break;
    case 8:
        client_.setShape(window, below(3) == 0 ? std::vector<QRect>{}
                                               : std::vector{within(), within(), within()});
        break;
    case 9:
        client_.setBorder(window, static_cast<std::uint16_t>(below(6)), seed | 0xff000000);
        break;
    case 10:
        changeParent(window);
        break;
    default:
        client_.drawPattern(window, within(), seed);
    }
}

xcb_window_t Unrest::other(xcb_window_t window) {
    const auto sibling =
        windows_[static_cast<std::size_t>(below(static_cast<int>(windows_.size())))];
    return sibling == window ? XCB_NONE : sibling;
}

void Unrest::add() {
    windows_.push_back(client_.show({.place = place(),
                                     .border = static_cast<std::uint16_t>(below(4)),
                                     .alpha = below(3) == 0,
                                     .overrideRedirect = below(2) == 0},
                                    static_cast<std::uint32_t>(random_())));
}

// Mostly back to the desktop, or soon there would be a single window with all others in it.
void Unrest::changeParent(xcb_window_t window) {
    const auto parent = below(3) == 0 ? other(window) : client_.root();
    if (parent != XCB_NONE)
        client_.reparent(window, parent);
}

unsigned seedOfThisRun(unsigned otherwise) {
    const char *given = std::getenv("TOVAREL_TEST_SEED");
    return given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : otherwise;
}
