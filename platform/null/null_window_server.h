// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"

/// The server of a session in which nothing can be recorded: no windows, no picture, one obstacle.
class NullWindowServer : public WindowServer {
public:
    explicit NullWindowServer(Obstacle obstacle) : obstacle_(obstacle) {}

    WindowServerCapabilities capabilities() const override { return {}; }
    std::optional<Obstacle> obstacle() const override { return obstacle_; }
    std::vector<WindowDescription> listWindows() override { return {}; }
    using WindowServer::composite;
    std::optional<Image> composite(std::span<const std::uint32_t>,
                                   const std::optional<QRect> &) override {
        return {};
    }

private:
    Obstacle obstacle_;
};
