// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/window_stack.h"

#include <algorithm>

namespace x11 {

std::vector<StackedWindow>::iterator WindowStack::locate(std::uint32_t number) {
    return std::ranges::find(windows_, number, &StackedWindow::number);
}

const StackedWindow *WindowStack::find(std::uint32_t number) const {
    const auto found = std::ranges::find(windows_, number, &StackedWindow::number);
    return found == windows_.end() ? nullptr : &*found;
}

void WindowStack::add(const StackedWindow &window) {
    remove(window.number);
    windows_.push_back(window);
}

bool WindowStack::remove(std::uint32_t number) {
    return std::erase_if(windows_, [number](const auto &w) { return w.number == number; }) > 0;
}

bool WindowStack::setMapped(std::uint32_t number, bool mapped) {
    const auto window = locate(number);
    if (window == windows_.end())
        return false;
    window->mapped = mapped;
    return true;
}

bool WindowStack::configure(const StackedWindow &window, std::uint32_t sibling) {
    const auto held = locate(window.number);
    if (held == windows_.end())
        return false;
    const bool mapped = held->mapped;
    *held = window;
    held->mapped = mapped;

    const auto below = locate(sibling);
    if (sibling != 0 && below == windows_.end())
        return true;
    // The first place that the window may take; it counts itself while it still lies below.
    const auto place = sibling == 0 ? windows_.begin() : below + 1;
    if (held < place)
        std::rotate(held, held + 1, place);
    else
        std::rotate(place, held, held + 1);
    return true;
}

bool WindowStack::circulate(std::uint32_t number, bool toTop) {
    const auto held = locate(number);
    if (held == windows_.end())
        return false;
    if (toTop)
        std::rotate(held, held + 1, windows_.end());
    else
        std::rotate(windows_.begin(), held, held + 1);
    return true;
}

} // namespace x11
