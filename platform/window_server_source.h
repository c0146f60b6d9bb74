// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screen_source.h"

/// A window server as a source: it asks nobody, and is live from its start on.
class WindowServerSource : public ScreenSource {
    Q_OBJECT

public:
    /// Not null.
    explicit WindowServerSource(std::unique_ptr<WindowServer> server);

    ScreenSourceCapabilities capabilities() const override;
    std::optional<Obstacle> obstacle() const override { return server_->obstacle(); }
    SourceState state() const override { return state_; }
    void start(const Start &how) override;
    void setRate(std::uint64_t) override {}
    void stop() override;
    std::vector<WindowDescription> windows() override { return server_->listWindows(); }
    std::vector<TitledWindow> titledWindows() override { return server_->titledWindows(); }
    std::unique_ptr<PointerWatch> watchPointer() override { return server_->watchPointer(); }
    std::unique_ptr<InputWatch> watchInput(InputKinds kinds) override {
        return server_->watchInput(kinds);
    }
    std::optional<ScreenPicture> latest(std::span<const std::uint32_t> numbers,
                                        const std::optional<QRect> &part) override;

private:
    void setState(SourceState state);

    std::unique_ptr<WindowServer> server_;
    SourceState state_ = SourceState::Idle;
};
