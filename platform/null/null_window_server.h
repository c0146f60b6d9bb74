// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"

/// The server of a session in which nothing can be recorded: no windows, no picture, one reason.
class NullWindowServer : public WindowServer {
public:
    /// `reason` is the sentence that the user reads in the preview's place.
    explicit NullWindowServer(QString reason);

    WindowServerCapabilities capabilities() const override { return {}; }
    QString reason() const override { return reason_; }
    std::vector<WindowDescription> listWindows() override { return {}; }
    using WindowServer::composite;
    std::optional<Image> composite(std::span<const std::uint32_t>,
                                   const std::optional<QRect> &) override {
        return {};
    }

private:
    QString reason_;
};
