// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/tile_memory.h"

#include <QImage>
#include <QRegion>
#include <QSize>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// A square of a kept picture, 32 bits a pixel. Its pixels never change; how they are held may, on
/// another thread, while they are read. Tiles at the right and lower edge of a picture are smaller.
class Tile {
public:
    static constexpr int side = 64; // pixels

    /// Takes the pixels of `place` out of `picture`; null when memory has run out.
    static std::shared_ptr<Tile> make(const std::shared_ptr<TileMemory> &memory,
                                      const QImage &picture, const QRect &place);
    ~Tile();
    Tile(const Tile &) = delete;
    Tile &operator=(const Tile &) = delete;

    /// Puts the pixels to where they belong in a picture.
    void read(QImage &picture, const QRect &place) const;
    /// Whether the pixels are those of `place` in `picture`.
    bool equals(const QImage &picture, const QRect &place) const;

    /// Holds the pixels compressed from now on where that saves at least an eighth; false where it
    /// doesn't. Only one thread compresses.
    bool compress();

private:
    struct Content;

    explicit Tile(std::shared_ptr<const Content> content) : content_(std::move(content)) {}

    std::atomic<std::shared_ptr<const Content>> content_;
};

/// The tiles of one picture, row by row. Rows of tiles are shared between pictures as the tiles
/// are, so that a picture with little change costs little more than that.
class TileTable {
public:
    using Row = std::vector<std::shared_ptr<const Tile>>;

    TileTable(QSize size, std::vector<std::shared_ptr<const Row>> rows)
        : size_(size), rows_(std::move(rows)) {}

    /// Number of tiles that a picture of this size has across and down.
    static QSize gridOf(QSize size);
    /// Where a tile lies in its picture.
    static QRect placeOf(QSize size, int column, int row);

    const std::vector<std::shared_ptr<const Row>> &rows() const { return rows_; }
    /// Brings `picture`, which has the table's size, up to date in the tiles that meet `where`.
    void read(QImage &picture, const QRegion &where) const;
    /// The tiles that are not the same ones in a table of the same size.
    QRegion differsFrom(const TileTable &other) const;

private:
    QSize size_;
    std::vector<std::shared_ptr<const Row>> rows_;
};
