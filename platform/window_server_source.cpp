// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/window_server_source.h"

#include <utility>

WindowServerSource::WindowServerSource(std::unique_ptr<WindowServer> server)
    : server_(std::move(server)) {}

ScreenSourceCapabilities WindowServerSource::capabilities() const {
    const WindowServerCapabilities has = server_->capabilities();
    return {.asksUser = false,
            .leavesOwnOut = has.canLeaveOut,
            .pointer = has.pointer,
            .clicks = has.clicks,
            .keys = has.keys};
}

void WindowServerSource::start(const Start &) {
    setState(server_->obstacle() ? SourceState::Ended : SourceState::Live);
}

void WindowServerSource::stop() { setState(SourceState::Idle); }

std::optional<ScreenPicture> WindowServerSource::latest(std::span<const std::uint32_t> numbers,
                                                        const std::optional<QRect> &part) {
    if (state_ != SourceState::Live)
        return {};
    auto picture = server_->composite(numbers, part);
    if (!picture)
        return {};
    return ScreenPicture{std::move(*picture)};
}

void WindowServerSource::setState(SourceState state) {
    if (state == state_)
        return;
    state_ = state;
    Q_EMIT stateChanged();
}
