// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/input_watch.h"
#include "platform/x11/connection.h"
#include "platform/x11/keyboard.h"

#include <QSocketNotifier>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace x11 {

/// What hands do to the buttons and keys of an X11 display, over a connection of its own.
///
/// By raw events (XInput 2.2, section 7, RawEvent): they come for all windows, whoever has grabbed
/// pointer or keyboard, and nobody loses one because of it. They tell no place, so that it is asked
/// for as soon as they come.
class X11InputWatch : public InputWatch {
public:
    /// Whether the display offers raw events.
    static bool isOffered(Connection &connection);

    /// Null when the display does not offer what is asked for.
    static std::unique_ptr<X11InputWatch> create(std::unique_ptr<Connection> connection,
                                                 InputKinds kinds);

    std::vector<Timed<ButtonChange>> takeButtons() override;
    std::vector<Timed<KeyPress>> takeKeys() override;

private:
    X11InputWatch(std::unique_ptr<Connection> connection, std::unique_ptr<Keyboard> keyboard);

    void select(InputKinds kinds);
    void read();
    void handle(const xcb_generic_event_t &event);
    void buttonChanged(std::uint32_t button, bool down);

    std::unique_ptr<Connection> connection_;
    std::uint8_t extension_ = 0;         // XInput's major opcode, which its events name
    std::unique_ptr<Keyboard> keyboard_; // null without keys
    QSocketNotifier notifier_;
    std::vector<Timed<ButtonChange>> buttons_;
    std::vector<Timed<KeyPress>> keys_;
};

} // namespace x11
