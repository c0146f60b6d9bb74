// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/tile_memory.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <new>
#include <utility>

namespace {

// What the processor's large pages hold.
constexpr std::size_t pieceBytes = std::size_t{2} << 20;
constexpr std::size_t blocksOfPiece = pieceBytes / TileMemory::blockBytes;

// Touched pieces kept ready: one whole picture of 3840 by 2160, and half as much again.
constexpr std::size_t spareWanted = 24;

} // namespace

/// A piece of memory and which of its blocks are free.
struct TileMemory::Piece {
    std::uint32_t *memory = nullptr;
    std::vector<std::uint16_t> free;

    static std::unique_ptr<Piece> make() {
        // Twice as much, so that there is an aligned piece in it: only such a one gets large pages.
        void *mapped = mmap(nullptr, 2 * pieceBytes, PROT_READ | PROT_WRITE,
                            MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (mapped == MAP_FAILED)
            return nullptr;
        const auto begin = reinterpret_cast<std::uintptr_t>(mapped);
        const std::uintptr_t aligned = (begin + pieceBytes - 1) / pieceBytes * pieceBytes;
        if (aligned > begin)
            munmap(mapped, aligned - begin);
        const std::uintptr_t end = aligned + pieceBytes;
        if (begin + 2 * pieceBytes > end)
            munmap(reinterpret_cast<void *>(end), begin + 2 * pieceBytes - end);
        auto piece = std::make_unique<Piece>();
        piece->memory = reinterpret_cast<std::uint32_t *>(aligned);
        madvise(piece->memory, pieceBytes, MADV_HUGEPAGE);
        piece->free.resize(blocksOfPiece);
        for (std::size_t block = 0; block < blocksOfPiece; ++block)
            piece->free[block] = static_cast<std::uint16_t>(blocksOfPiece - 1 - block);
        return piece;
    }
    Piece() = default;
    ~Piece() {
        if (memory)
            munmap(memory, pieceBytes);
    }
    Piece(const Piece &) = delete;
    Piece &operator=(const Piece &) = delete;

    void touch() const { std::memset(memory, 0, pieceBytes); }
    bool isUnused() const { return free.size() == blocksOfPiece; }
    std::uint32_t *block(std::size_t number) const {
        return memory + number * (blockBytes / sizeof(std::uint32_t));
    }
};

TileMemory::TileMemory() : toucher_([this](const std::stop_token &stop) { touchAhead(stop); }) {}

TileMemory::~TileMemory() = default;

void TileMemory::touchAhead(const std::stop_token &stop) {
    std::unique_lock lock(mutex_);
    while (wanted_.wait(lock, stop, [this] { return asked_ && spare_.size() < spareWanted; })) {
        lock.unlock();
        auto piece = Piece::make();
        if (piece)
            piece->touch();
        lock.lock();
        if (piece)
            spare_.push_back(std::move(piece));
        else
            asked_ = false; // no memory: whoever asks next wakes us again
    }
}

void TileMemory::rest() {
    std::vector<std::unique_ptr<Piece>> spare; // given back to the system after the lock
    const std::lock_guard lock(mutex_);
    asked_ = false;
    spare.swap(spare_);
}

TileMemory::Piece *TileMemory::pieceWithRoom() {
    if (!withRoom_.empty())
        return withRoom_.back();
    std::unique_ptr<Piece> piece;
    if (spare_.empty()) {
        piece = Piece::make();
    } else {
        piece = std::move(spare_.back());
        spare_.pop_back();
    }
    asked_ = true;
    wanted_.notify_one();
    if (!piece)
        return nullptr;
    Piece *added = piece.get();
    const auto place = std::ranges::upper_bound(pieces_, piece->memory, std::less<>(),
                                                [](const auto &other) { return other->memory; });
    pieces_.insert(place, std::move(piece));
    withRoom_.push_back(added);
    return added;
}

std::uint32_t *TileMemory::take() {
    const std::lock_guard lock(mutex_);
    Piece *piece = pieceWithRoom();
    if (!piece)
        return nullptr;
    std::uint32_t *block = piece->block(piece->free.back());
    piece->free.pop_back();
    if (piece->free.empty())
        std::erase(withRoom_, piece);
    bytesInUse_ += blockBytes;
    return block;
}

void TileMemory::giveBack(std::uint32_t *block) {
    std::unique_ptr<Piece> unused; // given back to the system after the lock
    const std::lock_guard lock(mutex_);
    const auto after = std::ranges::upper_bound(pieces_, block, std::less<>(),
                                                [](const auto &piece) { return piece->memory; });
    const auto place = std::prev(after);
    Piece &piece = **place;
    if (piece.free.empty())
        withRoom_.push_back(&piece);
    const auto words = static_cast<std::size_t>(block - piece.memory);
    piece.free.push_back(static_cast<std::uint16_t>(words / (blockBytes / sizeof(std::uint32_t))));
    bytesInUse_ -= blockBytes;
    if (!piece.isUnused())
        return;
    std::erase(withRoom_, &piece);
    unused = std::move(*place);
    pieces_.erase(place);
    if (asked_ && spare_.size() < spareWanted)
        spare_.push_back(std::move(unused));
}
