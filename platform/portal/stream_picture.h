// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/tile_comparison.h"

#include <QImage>
#include <QRegion>
#include <QSize>

#include <cstddef>
#include <mutex>
#include <optional>
#include <vector>

/// The newest picture of a stream, between the stream's thread and the main one. What has changed
/// is found by looking: what a compositor says of it may be missing, too much, or wrong. Only what
/// differs is copied.
class StreamPicture {
public:
    /// Of the four bytes of a pixel the upper one means nothing: a picture of a window may have an
    /// alpha there, and what it shows then is the window over black.
    enum class Order { BlueFirst, RedFirst };

    /// On the stream's thread: the newest frame, which is not needed any more when this returns.
    void put(const PixelRows &rows, QSize size, Order order = Order::BlueFirst);

    /// On the main thread: the newest picture, the same as before until something changed in it;
    /// none before the first frame.
    std::optional<Image> take();

private:
    struct Slot {
        QImage pixels;
        QRegion stale; ///< where it is not as the newest frame
    };

    PixelRows turned(const PixelRows &rows, QSize size);
    Slot &idleSlot(QSize size);

    // The stream's thread.
    std::vector<Slot> slots_;
    std::vector<std::uint32_t> turned_; // a frame whose bytes stand in another order

    std::mutex mutex_;
    QImage newest_;
    bool isNew_ = false;
    std::optional<QRegion> changed_; // since it was taken last; none: all of it

    // The main thread.
    Image taken_;
};
