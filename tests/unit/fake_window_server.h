// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"

/// A window server without a screen: a test says which windows there are and what a grab yields.
class FakeWindowServer : public WindowServer {
public:
    std::vector<WindowDescription> windows;
    std::optional<Image> picture;
    QString why;
    /// The numbers of the last grab, and the part of it that was wanted.
    std::vector<std::uint32_t> asked;
    std::optional<QRect> part;

    WindowServerCapabilities capabilities() const override { return {true, true, true}; }
    QString reason() const override { return why; }
    std::vector<WindowDescription> listWindows() override { return windows; }
    using WindowServer::composite;
    std::optional<Image> composite(std::span<const std::uint32_t> numbers,
                                   const std::optional<QRect> &wanted) override {
        asked.assign(numbers.begin(), numbers.end());
        part = wanted;
        return picture;
    }
};
