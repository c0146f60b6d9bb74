// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <Qt>

#include <chrono>
#include <cstdint>
#include <vector>

/// A key that went down, as the keyboard's layout in use has it. Keys that only modify others are
/// not told.
struct KeyPress {
    /// What it is without any modifier: a Qt::Key; 0 for one that has no name there. Letters and
    /// other characters of any script are their upper-case code point.
    int key = 0;
    /// Control, Alt, Super (Qt::MetaModifier) and Shift, held.
    Qt::KeyboardModifiers modifiers;
    /// Other modifiers, or a level beyond Shift's, make it yield another character than its own:
    /// AltGr, level 5, Mode_switch.
    bool onOtherLevel = false;
    /// It is a key of the number pad that can yield a character.
    bool onNumberPad = false;
    /// It yields no character by itself but changes what the next one yields.
    bool isDead = false;
    /// It begins a sequence that yields a character.
    bool isCompose = false;

    bool operator==(const KeyPress &) const = default;
};

/// A mouse button that went down or up.
struct ButtonChange {
    /// 1 is the left one, 2 the middle one, 3 the right one; 4 to 7, the wheel's, are not told.
    int button = 0;
    bool down = false;
    /// Where the pointer was, in pixels of the desktop, upper left origin.
    QPoint place;
    /// The window that it was over, by its number in the window server's list; 0 for none.
    std::uint32_t window = 0;
};

/// One thing that a hand did.
template <class What> struct Timed {
    std::chrono::steady_clock::time_point time;
    What what;
};

/// Hears what hands do to buttons or keys for as long as it exists, whichever window it is meant
/// for and without taking it away from that; whoever needs none of it has none of these. All calls
/// come from the main thread.
class InputWatch {
public:
    virtual ~InputWatch() = default;

    /// What happened since this was last asked, in order.
    virtual std::vector<Timed<ButtonChange>> takeButtons() = 0;
    virtual std::vector<Timed<KeyPress>> takeKeys() = 0;
};

/// What an `InputWatch` is to hear.
struct InputKinds {
    bool buttons = false;
    bool keys = false;

    bool operator==(const InputKinds &) const = default;
};
