// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/input_watch.h"
#include "record/marks/click_marks.h"

#include <QRect>
#include <QSize>
#include <QString>

#include <chrono>
#include <optional>

/// Keys that were pressed, as far as they may be seen. What could be part of a password or of any
/// other text is never shown. Values only: nobody here looks at a clock.

/// Whether a key press, taken by itself, may be shown: combinations with Control, Alt or Super, and
/// keys that command rather than write (function keys, Return, Escape, Tab, arrows, Delete).
/// Nothing that yields a character: neither plain or shifted letters, digits and signs, nor those
/// of other levels (AltGr and the like), dead keys, Compose, or the number pad's, which spell
/// characters together with Alt.
bool mayBeShown(const KeyPress &press);

/// What the press is called: its modifiers, and its name on the keyboard's layout.
QString nameOf(const KeyPress &press);

/// The plate that a frame shows.
struct Plate {
    QString text;

    bool operator==(const Plate &) const = default;
};

/// The last combination, and how often it came in a row.
class KeyTrail {
public:
    /// How long it can be seen.
    static constexpr std::chrono::milliseconds lasts{1500};

    /// Takes in a press; one that may not be shown changes nothing that can be seen. What follows a
    /// dead key, Compose, or Ctrl+Shift+U (by which input methods take a character's number)
    /// belongs to a character, and is not shown either.
    void take(const Timed<KeyPress> &press);

    /// What is to be seen at `now`.
    std::optional<Plate> at(MarkTime now) const;

private:
    bool isOfACharacter(const KeyPress &press);

    std::optional<Timed<KeyPress>> last_;
    int count_ = 0;
    bool interrupted_ = false; // something else was pressed since
    int presses_ = 0;          // to come, of a sequence that yields a character
    bool takesNumber_ = false; // of a character
};
