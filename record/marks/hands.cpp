// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/marks/hands.h"

#include "shell/settings.h"

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
}

void Hands::showPointer(bool shown) {
    pointerShown_ = shown;
    settings::writeShowPointer(shown);
    if (following_)
        follow();
}

void Hands::follow() {
    following_ = true;
    if (!pointerShown_)
        pointer_.reset();
    else if (!pointer_)
        pointer_ = server_.watchPointer();
}

void Hands::rest() {
    following_ = false;
    pointer_.reset();
}

MarksShown Hands::look(std::span<const WindowDescription> windows) {
    MarksShown shown;
    if (pointer_)
        shown.pointer = pointer_->now();
    if (shown.pointer && isOurs(windows, shown.pointer->window))
        shown.pointer.reset();
    return shown;
}
