// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/// Memory for tiles: blocks of one size out of large pieces.
///
/// Most of the cost of fresh memory is the kernel's, which clears every page at its first touch. A
/// thread of its own does that ahead of need, so that whoever asks for a block meets touched pages.
/// Blocks come back on any thread and are given out again; a piece of which nothing is in use goes
/// back to the system, a few spare ones aside.
class TileMemory {
public:
    static constexpr std::size_t blockBytes = std::size_t{64} * 64 * 4;

    TileMemory();
    ~TileMemory(); ///< all blocks are back
    TileMemory(const TileMemory &) = delete;
    TileMemory &operator=(const TileMemory &) = delete;

    /// A block of `blockBytes` with anything in it; null when memory has run out.
    std::uint32_t *take();
    /// Takes back a block that this object gave out.
    void giveBack(std::uint32_t *block);

    /// Gives up what was touched ahead, until somebody asks again.
    void rest();

    /// Bytes in use: blocks given out, and what their users count in beside them.
    std::size_t bytesInUse() const { return bytesInUse_; }
    void count(std::ptrdiff_t bytes) { bytesInUse_ += static_cast<std::size_t>(bytes); }

private:
    struct Piece;

    void touchAhead(const std::stop_token &stop);
    Piece *pieceWithRoom();

    std::atomic<std::size_t> bytesInUse_ = 0;
    std::mutex mutex_;
    std::condition_variable_any wanted_;
    std::vector<std::unique_ptr<Piece>> pieces_; // by address
    std::vector<Piece *> withRoom_;
    std::vector<std::unique_ptr<Piece>> spare_; // touched and empty
    bool asked_ = false;
    std::jthread toucher_; // last: it uses the others
};
