// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screen_source.h"
#include "record/marks/marks.h"

#include <memory>
#include <span>
#include <vector>

/// Follows what the user's hands do, as far as it is to be shown: what is switched off is not
/// followed, and costs nothing. Everything runs on the main thread.
class Hands {
public:
    /// `source` is borrowed and outlives it.
    explicit Hands(ScreenSource &source) : source_(source) {}

    /// The switches as they were left, and at the first start the pointer alone. Keys are off at
    /// every start: nobody shall show them unawares.
    void start();

    /// Whether each can be shown here at all, or why not.
    HandAccess pointerAccess() const { return source_.capabilities().pointer; }
    HandAccess clicksAccess() const { return source_.capabilities().clicks; }
    HandAccess keysAccess() const { return source_.capabilities().keys; }

    /// Whether each is shown; pointer and clicks are remembered from one start to the next.
    bool isPointerShown() const { return pointerShown_; }
    bool areClicksShown() const { return clicksShown_; }
    bool areKeysShown() const { return keysShown_; }
    void showPointer(bool shown);
    void showClicks(bool shown);
    void showKeys(bool shown);

    /// Follows what is switched on, and no longer: for as long as grabs are taken.
    void follow();
    void rest();
    /// What happened so far is not to be seen any more.
    void forget();

    /// What is to be shown at this moment, when a grab has just been taken of these windows.
    /// Nothing of what hands do in the program's own windows, which the grab does not show either.
    MarksShown look(std::span<const WindowDescription> windows);

private:
    void followInput();
    void takeInput(std::span<const WindowDescription> windows);

    ScreenSource &source_;
    bool pointerShown_ = false;
    bool clicksShown_ = false;
    bool keysShown_ = false;
    bool following_ = false;
    std::unique_ptr<PointerWatch> pointer_;
    InputKinds heard_; // by `input_`
    std::unique_ptr<InputWatch> input_;
    std::vector<Click> clicks_;
    KeyTrail keys_;
};
