// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"

#include <QImage>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

/// A window server without a screen: a test says which windows there are and what a grab yields.
class FakeWindowServer : public WindowServer {
public:
    std::vector<WindowDescription> windows;
    std::optional<Image> picture;
    std::optional<Obstacle> why;
    /// The numbers of the last grab.
    std::vector<std::uint32_t> asked;

    /// Where the pointer is, for whoever watches it.
    std::optional<Pointer> pointer;
    /// What hands did since somebody who hears it last asked, and whether that can be heard.
    std::vector<Timed<ButtonChange>> buttons;
    std::vector<Timed<KeyPress>> keys;
    HandAccess handAccess = HandAccess::Granted;
    /// What is heard.
    InputKinds heard;

    WindowServerCapabilities capabilities() const override {
        return {true, true, true, HandAccess::Granted, handAccess, handAccess};
    }
    std::unique_ptr<PointerWatch> watchPointer() override {
        struct Watch : PointerWatch {
            explicit Watch(FakeWindowServer &fake) : server(fake) {}
            std::optional<Pointer> now() override { return server.pointer; }
            FakeWindowServer &server;
        };
        return std::make_unique<Watch>(*this);
    }
    std::unique_ptr<InputWatch> watchInput(InputKinds kinds) override {
        struct Watch : InputWatch {
            explicit Watch(FakeWindowServer &fake) : server(fake) {}
            ~Watch() override { server.heard = {}; }
            std::vector<Timed<ButtonChange>> takeButtons() override {
                return std::exchange(server.buttons, {});
            }
            std::vector<Timed<KeyPress>> takeKeys() override {
                return std::exchange(server.keys, {});
            }
            FakeWindowServer &server;
        };
        heard = kinds;
        return std::make_unique<Watch>(*this);
    }
    std::optional<Obstacle> obstacle() const override { return why; }
    std::vector<WindowDescription> listWindows() override { return windows; }
    using WindowServer::composite;
    std::optional<Image> composite(std::span<const std::uint32_t> numbers,
                                   const std::optional<QRect> &) override {
        asked.assign(numbers.begin(), numbers.end());
        return picture;
    }
};

/// A picture of one colour.
inline Image plainImage(QSize size, QRgb colour, QImage::Format format = QImage::Format_RGB32) {
    QImage pixels(size, format);
    pixels.fill(colour);
    return Image::fromQImage(pixels);
}
