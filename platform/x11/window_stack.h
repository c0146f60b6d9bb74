// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <cstdint>
#include <span>
#include <vector>

namespace x11 {

/// A child of the root window. Its outer rectangle takes in the border; desktop coordinates.
struct StackedWindow {
    std::uint32_t number = 0;
    QRect outer;
    int border = 0;
    bool mapped = false;
    bool overrideRedirect = false;
};

/// The stacking order of the root window's children, as reported by the server's structure events.
/// A model by value: it asks nothing, and events about windows that it does not hold are ignored.
/// Windows that are never shown (the server's own, input-only ones) are held too: others are
/// stacked relative to them.
class WindowStack {
public:
    /// Bottom to top, as the protocol lists children.
    std::span<const StackedWindow> bottomToTop() const { return windows_; }
    const StackedWindow *find(std::uint32_t number) const;

    /// A new window lies on top. One that is already held is replaced: numbers are used again.
    void add(const StackedWindow &window);
    /// The others return false when there is no such window.
    bool remove(std::uint32_t number);
    bool setMapped(std::uint32_t number, bool mapped);
    /// Takes over place, border and redirection, and puts the window right above `sibling`; 0 (the
    /// protocol's "None") is the bottom. Above an unknown sibling it stays where it is.
    bool configure(const StackedWindow &window, std::uint32_t sibling);
    /// To the top of the stack or to its bottom.
    bool circulate(std::uint32_t number, bool toTop);

private:
    std::vector<StackedWindow>::iterator locate(std::uint32_t number);

    std::vector<StackedWindow> windows_;
};

} // namespace x11
