// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Keys that reach this program whatever window has the focus: Super and Ctrl with a letter.
/// Desktops keep plain Super for themselves and programs keep plain Ctrl; the two together are
/// hardly in use. The window server grants a combination to one client: one that somebody else has
/// is left to them, and the next letter of choice is asked for in its place. Where windows are not
/// X11's nothing is granted. They are given back when this object ends.
class GlobalShortcuts {
public:
    /// Gets the place of the key that was pressed, in the order of `keys`. Called on the
    /// thread that made the object, from its event loop, and again while the key is held down.
    using Handler = std::function<void(std::size_t place)>;

    /// For each key the letters to choose from, the preferred one first; lower case, 'a' to 'z'.
    GlobalShortcuts(const std::vector<std::string> &keys, Handler handler);
    ~GlobalShortcuts();

    /// The letter of this key that is ours; none when all are taken. It may change with the
    /// keyboard's layout.
    std::optional<char> granted(std::size_t place) const;

private:
    class Grabs;
    std::unique_ptr<Grabs> grabs_; // null without a server
};
