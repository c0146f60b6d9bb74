// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/tile.h"

#include <lz4.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace {

constexpr std::size_t tilePixels = std::size_t{Tile::side} * Tile::side;
// What a tile costs beside its pixels: itself, its content, and the handles on both.
constexpr std::ptrdiff_t tileOverhead = 128;

using Pixels = std::array<std::uint32_t, tilePixels>;
using Probes = std::array<std::uint32_t, 16>;

std::size_t probeOf(std::size_t number, std::size_t pixels) {
    return number * pixels / std::tuple_size_v<Probes>;
}

std::size_t rowBytes(const QRect &place) {
    return static_cast<std::size_t>(place.width()) * sizeof(std::uint32_t);
}

const uchar *rowOf(const QImage &picture, const QRect &place, int row) {
    return picture.constScanLine(place.y() + row) +
           static_cast<std::ptrdiff_t>(sizeof(std::uint32_t)) * place.x();
}

} // namespace

/// Either all pixels in a block, rows without gaps, or the same compressed.
struct Tile::Content {
    std::shared_ptr<TileMemory> memory;
    std::uint32_t *block = nullptr;
    std::size_t pixels = 0;
    std::unique_ptr<char[]> compressed;
    std::size_t compressedBytes = 0;
    Probes probes; // only when compressed: other pixels mostly differ in one of these

    Content(std::shared_ptr<TileMemory> source, const QRect &place)
        : memory(std::move(source)), pixels(static_cast<std::size_t>(place.width()) *
                                            static_cast<std::size_t>(place.height())) {}
    Content(const Content &whole, const char *packed, std::size_t bytes)
        : memory(whole.memory), pixels(whole.pixels),
          compressed(std::make_unique_for_overwrite<char[]>(bytes)), compressedBytes(bytes) {
        std::memcpy(compressed.get(), packed, bytes);
        for (std::size_t i = 0; i < probes.size(); ++i)
            probes[i] = whole.block[probeOf(i, pixels)];
        memory->count(static_cast<std::ptrdiff_t>(bytes));
    }
    ~Content() {
        if (block)
            memory->giveBack(block);
        memory->count(-static_cast<std::ptrdiff_t>(compressedBytes));
    }
    Content(const Content &) = delete;
    Content &operator=(const Content &) = delete;

    std::size_t bytes() const { return pixels * sizeof(std::uint32_t); }

    bool mayEqual(const QImage &picture, const QRect &place) const {
        for (std::size_t i = 0; i < probes.size(); ++i) {
            const int pixel = static_cast<int>(probeOf(i, pixels));
            const auto *row = reinterpret_cast<const std::uint32_t *>(
                rowOf(picture, place, pixel / place.width()));
            if (row[pixel % place.width()] != probes[i])
                return false;
        }
        return true;
    }

    /// The pixels, in `room` where they have to be unpacked.
    const std::uint32_t *unpacked(Pixels &room) const {
        if (block)
            return block;
        LZ4_decompress_safe(compressed.get(), reinterpret_cast<char *>(room.data()),
                            static_cast<int>(compressedBytes), static_cast<int>(sizeof room));
        return room.data();
    }
};

std::shared_ptr<Tile> Tile::make(const std::shared_ptr<TileMemory> &memory, const QImage &picture,
                                 const QRect &place) {
    auto content = std::make_shared<Content>(memory, place);
    content->block = memory->take();
    if (!content->block)
        return nullptr;
    auto *to = reinterpret_cast<uchar *>(content->block);
    for (int row = 0; row < place.height(); ++row, to += rowBytes(place))
        std::memcpy(to, rowOf(picture, place, row), rowBytes(place));
    memory->count(tileOverhead);
    return std::shared_ptr<Tile>(new Tile(std::move(content))); // the constructor is ours alone
}

Tile::~Tile() {
    if (const auto content = content_.load())
        content->memory->count(-tileOverhead);
}

void Tile::read(QImage &picture, const QRect &place) const {
    const auto content = content_.load();
    Pixels room;
    const auto *from = reinterpret_cast<const uchar *>(content->unpacked(room));
    for (int row = 0; row < place.height(); ++row, from += rowBytes(place))
        std::memcpy(picture.scanLine(place.y() + row) +
                        static_cast<std::ptrdiff_t>(sizeof(std::uint32_t)) * place.x(),
                    from, rowBytes(place));
}

bool Tile::equals(const QImage &picture, const QRect &place) const {
    const auto content = content_.load();
    if (!content->block && !content->mayEqual(picture, place))
        return false;
    Pixels room;
    const auto *from = reinterpret_cast<const uchar *>(content->unpacked(room));
    for (int row = 0; row < place.height(); ++row, from += rowBytes(place))
        if (std::memcmp(rowOf(picture, place, row), from, rowBytes(place)) != 0)
            return false;
    return true;
}

bool Tile::compress() {
    const auto content = content_.load();
    std::array<char, LZ4_COMPRESSBOUND(sizeof(Pixels))> room;
    const int bytes =
        LZ4_compress_default(reinterpret_cast<const char *>(content->block), room.data(),
                             static_cast<int>(content->bytes()), static_cast<int>(room.size()));
    if (bytes <= 0 || static_cast<std::size_t>(bytes) > content->bytes() / 8 * 7)
        return false;
    content_.store(
        std::make_shared<const Content>(*content, room.data(), static_cast<std::size_t>(bytes)));
    return true;
}

QSize TileTable::gridOf(QSize size) {
    return {(size.width() + Tile::side - 1) / Tile::side,
            (size.height() + Tile::side - 1) / Tile::side};
}

QRect TileTable::placeOf(QSize size, int column, int row) {
    return QRect(column * Tile::side, row * Tile::side, Tile::side, Tile::side)
        .intersected(QRect(QPoint(), size));
}

void TileTable::read(QImage &picture, const QRegion &where) const {
    picture.bits(); // detaches once, not in each tile
    for (std::size_t y = 0; y < rows_.size(); ++y)
        for (std::size_t x = 0; x < rows_[y]->size(); ++x) {
            const QRect place = placeOf(size_, static_cast<int>(x), static_cast<int>(y));
            if (where.intersects(place))
                (*rows_[y])[x]->read(picture, place);
        }
}

QRegion TileTable::differsFrom(const TileTable &other) const {
    QRegion different;
    for (std::size_t y = 0; y < rows_.size(); ++y) {
        if (rows_[y] == other.rows_[y])
            continue;
        // Neighbours become one rectangle: regions are slow to put together.
        QRect run;
        for (std::size_t x = 0; x < rows_[y]->size(); ++x) {
            if ((*rows_[y])[x] != (*other.rows_[y])[x]) {
                run |= placeOf(size_, static_cast<int>(x), static_cast<int>(y));
                continue;
            }
            different += run;
            run = QRect();
        }
        different += run;
    }
    return different;
}
