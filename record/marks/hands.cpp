// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/marks/hands.h"

#include "shell/settings.h"

#include <QApplication>

#include <algorithm>

namespace {

bool isOurs(std::span<const WindowDescription> windows, std::uint32_t number) {
    return std::ranges::any_of(windows, [number](const WindowDescription &window) {
        return window.number == number && window.ownerName == ownWindowsName;
    });
}

} // namespace

void Hands::start() {
    pointerShown_ = settings::readShowPointer() && pointerAccess() == HandAccess::Granted;
    clicksShown_ = settings::readShowClicks() && clicksAccess() == HandAccess::Granted;
    keysShown_ = false;
}

void Hands::showPointer(bool shown) {
    pointerShown_ = shown;
    settings::writeShowPointer(shown);
    if (following_)
        follow();
}

void Hands::showClicks(bool shown) {
    clicksShown_ = shown;
    settings::writeShowClicks(shown);
    if (following_)
        follow();
}

void Hands::showKeys(bool shown) {
    keysShown_ = shown;
    if (following_)
        follow();
}

void Hands::follow() {
    following_ = true;
    // Clicks that are held go where the pointer goes.
    if (!pointerShown_ && !clicksShown_)
        pointer_.reset();
    else if (!pointer_)
        pointer_ = source_.watchPointer();
    followInput();
}

void Hands::followInput() {
    const InputKinds wanted{.buttons = clicksShown_, .keys = keysShown_};
    if (wanted == heard_ && input_)
        return;
    forget();
    heard_ = wanted;
    input_.reset();
    if (wanted == InputKinds{})
        return;
    input_ = source_.watchInput(wanted);
    // A switch that is on says that it works.
    if (!input_)
        clicksShown_ = keysShown_ = false;
}

void Hands::rest() {
    following_ = false;
    pointer_.reset();
    input_.reset();
    forget();
}

void Hands::forget() {
    if (input_) {
        input_->takeButtons();
        input_->takeKeys();
    }
    clicks_.clear();
    keys_ = {};
}

MarksShown Hands::look(std::span<const WindowDescription> windows) {
    MarksShown shown{.pointer = {}, .hand = {}, .clicks = {}, .keys = {}, .now = {}};
    if (!pointer_ && !input_)
        return shown;
    takeInput(windows);
    if (pointer_)
        shown.pointer = pointer_->now();
    if (shown.pointer)
        shown.hand = shown.pointer->place;
    if (shown.pointer && (!pointerShown_ || isOurs(windows, shown.pointer->window)))
        shown.pointer.reset();
    shown.now = std::chrono::steady_clock::now();
    forgetPast(clicks_, shown.now);
    shown.clicks = clicks_;
    shown.keys = keys_.at(shown.now);
    return shown;
}

void Hands::takeInput(std::span<const WindowDescription> windows) {
    if (!input_)
        return;
    for (const Timed<ButtonChange> &change : input_->takeButtons())
        if (!change.what.down || !isOurs(windows, change.what.window))
            take(clicks_, change);
    const bool forUs = QApplication::activeWindow() != nullptr;
    for (const Timed<KeyPress> &press : input_->takeKeys())
        if (!forUs)
            keys_.take(press);
}
