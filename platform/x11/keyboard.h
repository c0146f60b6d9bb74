// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/input_watch.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <optional>

struct xkb_context;
struct xkb_keymap;
struct xkb_state;

namespace x11 {

struct FreeXkb {
    void operator()(xkb_context *context) const;
    void operator()(xkb_keymap *keymap) const;
    void operator()(xkb_state *state) const;
};

/// What a key is under this state of the keyboard; none for a key that only modifies others. `code`
/// is the X server's (and XKB's) key code.
std::optional<KeyPress> keyPress(xkb_state *state, std::uint32_t code);

/// The layout and the state of a display's keyboard, kept true by the server's events.
class Keyboard {
public:
    /// Whether the server tells what its keys mean.
    static bool isOffered(xcb_connection_t *connection);

    /// Listens on this connection, which is borrowed and outlives it. Null when the server has no
    /// XKB.
    static std::unique_ptr<Keyboard> create(xcb_connection_t *connection);

    /// Takes in an event of the connection; false when it is not the keyboard's.
    bool handle(const xcb_generic_event_t &event);

    std::optional<KeyPress> press(std::uint32_t code) const { return keyPress(state_.get(), code); }

private:
    Keyboard() = default;
    bool readLayout();

    xcb_connection_t *connection_ = nullptr;
    std::uint8_t firstEvent_ = 0;
    std::int32_t device_ = 0;
    std::unique_ptr<xkb_context, FreeXkb> context_;
    std::unique_ptr<xkb_keymap, FreeXkb> keymap_;
    std::unique_ptr<xkb_state, FreeXkb> state_;
};

} // namespace x11
