// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/tile.h"
#include "platform/image/tile_memory.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/// Keeps pictures for long: as tiles that are shared with the picture before wherever nothing
/// changed, and compressed afterwards, by a thread of low priority. The pixels stay exact. It may
/// end before the pictures that it made.
class TileStore {
public:
    TileStore();
    ~TileStore();
    TileStore(const TileStore &) = delete;
    TileStore &operator=(const TileStore &) = delete;

    /// The same picture as `image` (`Image::sameAs`), kept. `previous` is what was kept before it,
    /// or the empty image. When memory has run out it is `image` itself.
    Image keep(const Image &image, const Image &previous);

    /// Nothing will be kept for a while: gives up memory that was made ready.
    void rest() { memory_->rest(); }

    /// Memory held by all that was kept and still exists, in bytes.
    std::size_t bytesHeld() const { return memory_->bytesInUse(); }

    /// Waits until nothing is left to be compressed; for tests and measurements.
    void waitUntilCompressed();

private:
    /// Judges whether compressing pays: pictures out of a camera hardly shrink.
    class Worth;
    class Builder;

    Image keepWhole(const Image &image, const Image &previous);
    Image keepPatched(const Image &image, const Image &previous);
    void enqueue(const std::vector<std::weak_ptr<Tile>> &tiles);
    void compressAll(const std::stop_token &stop);

    // Tiles have handles on it of their own.
    std::shared_ptr<TileMemory> memory_;

    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::deque<std::weak_ptr<Tile>> queue_;
    bool busy_ = false;
    std::jthread compressor_; // last: it uses the others
};
