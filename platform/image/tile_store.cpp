// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/tile_store.h"

#include "platform/image/image_storage.h"

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

// How many tiles in a row must have been tried in vain before most are passed over, and how many
// are passed over then for each that is tried again.
constexpr int triesInVain = 64;
constexpr int passedOver = 15;

/// Low, but not the lowest: on a busy machine such a thread would keep a process that was killed,
/// and its locks, alive for seconds.
constexpr int lowPriority = 5;

void runAtLowPriority() {
    setpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid)), lowPriority);
}

} // namespace

class TileStore::Worth {
public:
    bool trying() {
        if (vain_ < triesInVain)
            return true;
        passed_ = (passed_ + 1) % (passedOver + 1);
        return passed_ == 0;
    }
    void learn(bool paid) { vain_ = paid ? 0 : std::min(vain_ + 1, triesInVain); }

private:
    int vain_ = 0;
    int passed_ = 0;
};

TileStore::TileStore()
    : memory_(std::make_shared<TileMemory>()),
      compressor_([this](const std::stop_token &stop) { compressAll(stop); }) {}

TileStore::~TileStore() = default;

void TileStore::compressAll(const std::stop_token &stop) {
    runAtLowPriority();
    Worth worth;
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, stop, [this] { return !queue_.empty(); }) &&
           !stop.stop_requested()) {
        const std::shared_ptr<Tile> tile = queue_.front().lock();
        queue_.pop_front();
        busy_ = true;
        lock.unlock();
        if (tile && worth.trying())
            worth.learn(tile->compress());
        lock.lock();
        busy_ = false;
        if (queue_.empty())
            changed_.notify_all();
    }
}

void TileStore::waitUntilCompressed() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return queue_.empty() && !busy_; });
}

/// Makes the tiles of one picture, taking over from the picture before what is equal.
class TileStore::Builder {
public:
    Builder(const std::shared_ptr<TileMemory> &memory, const QImage &pixels,
            const TileTable *before, const std::optional<QRegion> &changes)
        : memory_(memory), pixels_(pixels), before_(before), changes_(changes) {}

    /// Null when memory has run out.
    std::shared_ptr<const TileTable> table() {
        const QSize grid = TileTable::gridOf(pixels_.size());
        std::vector<std::shared_ptr<const TileTable::Row>> rows;
        rows.reserve(static_cast<std::size_t>(grid.height()));
        for (int y = 0; y < grid.height(); ++y) {
            rows.push_back(row(y, grid.width()));
            if (!rows.back())
                return nullptr;
        }
        return tableOf(pixels_.size(), std::move(rows));
    }

    /// The tiles of a picture that consists of patches on another one, whose tiles are `beneath`.
    /// Null when memory has run out.
    std::shared_ptr<const TileTable> patchedTable(const TileTable &beneath,
                                                  const Image::Storage &picture) {
        auto rows = beneath.rows();
        QImage room(Tile::side, Tile::side, picture.format());
        if (room.isNull())
            return nullptr;
        for (std::size_t y = 0; y < rows.size(); ++y) {
            const QRect band(0, static_cast<int>(y) * Tile::side, picture.size.width(), Tile::side);
            if (!picture.patched.intersects(band))
                continue;
            TileTable::Row tiles = *rows[y];
            for (std::size_t x = 0; x < tiles.size(); ++x) {
                const QRect place =
                    TileTable::placeOf(picture.size, static_cast<int>(x), static_cast<int>(y));
                if (!picture.patched.intersects(place))
                    continue;
                tiles[x]->read(room, QRect(QPoint(), place.size()));
                paste(picture.patches, place, room);
                const auto *old = before_ ? &(*before_->rows()[y])[x] : nullptr;
                tiles[x] = tile(room, QRect(QPoint(), place.size()), old);
                if (!tiles[x])
                    return nullptr;
            }
            rows[y] = rowOf(std::move(tiles));
        }
        return tableOf(picture.size, std::move(rows));
    }

    /// The tiles that were made again.
    std::vector<std::weak_ptr<Tile>> fresh;

private:
    std::shared_ptr<const TileTable::Row> row(int y, int columns) {
        const auto *before = before_ ? &before_->rows()[static_cast<std::size_t>(y)] : nullptr;
        if (before && changes_ && !changes_->intersects(rowPlace(y)))
            return *before;
        TileTable::Row tiles;
        tiles.reserve(static_cast<std::size_t>(columns));
        for (int x = 0; x < columns; ++x) {
            const auto *old = before ? &(**before)[static_cast<std::size_t>(x)] : nullptr;
            const QRect place = TileTable::placeOf(pixels_.size(), x, y);
            const bool unchanged = old && changes_ && !changes_->intersects(place);
            tiles.push_back(unchanged ? *old : tile(pixels_, place, old));
            if (!tiles.back())
                return nullptr;
        }
        if (before && **before == tiles)
            return *before;
        return rowOf(std::move(tiles));
    }

    std::shared_ptr<const Tile> tile(const QImage &pixels, const QRect &place,
                                     const std::shared_ptr<const Tile> *old) {
        if (old && (*old)->equals(pixels, place))
            return *old;
        auto made = Tile::make(memory_, pixels, place);
        if (made)
            fresh.push_back(made);
        return made;
    }

    /// Puts those pixels of the patches that lie within `place` to where they belong in `room`,
    /// which holds that place.
    static void paste(const std::vector<ImagePatch> &patches, const QRect &place, QImage &room) {
        for (const ImagePatch &patch : patches) {
            const QRect part = QRect(patch.corner, patch.pixels.size()).intersected(place);
            const QPoint from = part.topLeft() - patch.corner,
                         to = part.topLeft() - place.topLeft();
            const auto bytes = static_cast<std::size_t>(part.width()) * sizeof(std::uint32_t);
            for (int row = 0; row < part.height(); ++row)
                std::memcpy(room.scanLine(to.y() + row) + std::ptrdiff_t{4} * to.x(),
                            patch.pixels.constScanLine(from.y() + row) +
                                std::ptrdiff_t{4} * from.x(),
                            bytes);
        }
    }

    std::shared_ptr<const TileTable::Row> rowOf(TileTable::Row tiles) const {
        const auto cost = sizeof(TileTable::Row) + tiles.size() * sizeof tiles.front();
        return counted(std::move(tiles), static_cast<std::ptrdiff_t>(cost));
    }

    std::shared_ptr<const TileTable>
    tableOf(QSize size, std::vector<std::shared_ptr<const TileTable::Row>> rows) const {
        const auto cost = sizeof(TileTable) + rows.size() * sizeof rows.front();
        return counted(TileTable(size, std::move(rows)), static_cast<std::ptrdiff_t>(cost));
    }

    QRect rowPlace(int y) const { return {0, y * Tile::side, pixels_.width(), Tile::side}; }

    /// Its cost is among the bytes held for as long as it lives.
    template <class T> std::shared_ptr<const T> counted(T value, std::ptrdiff_t cost) const {
        memory_->count(cost);
        return std::shared_ptr<const T>(new T(std::move(value)),
                                        [memory = memory_, cost](const T *counted) {
                                            delete counted;
                                            memory->count(-cost);
                                        });
    }

    const std::shared_ptr<TileMemory> &memory_;
    const QImage &pixels_;
    const TileTable *before_;
    const std::optional<QRegion> &changes_;
};

Image TileStore::keep(const Image &image, const Image &previous) {
    if (image.sameAs(previous))
        return previous;
    if (image.isEmpty() || image.storage_->tiles)
        return image;
    if (!image.storage_->beneath.isEmpty())
        return keepPatched(image, previous);
    const Image &before = previous.isEmpty() || previous.storage_->beneath.isEmpty()
                              ? previous
                              : previous.storage_->beneath;
    if (image.sameAs(before))
        return before;
    return keepWhole(image, before);
}

Image TileStore::keepWhole(const Image &image, const Image &previous) {
    const bool related = !previous.isEmpty() && previous.storage_->tiles &&
                         previous.size() == image.size() && previous.hasAlpha() == image.hasAlpha();
    const QImage pixels = image.toQImage();
    const auto changes = image.changesSince(previous);
    Builder builder(memory_, pixels, related ? previous.storage_->tiles.get() : nullptr, changes);
    auto kept = std::make_shared<Image::Storage>();
    kept->identity = image.identity();
    kept->size = image.size();
    kept->alpha = image.hasAlpha();
    kept->tiles = builder.table();
    if (!kept->tiles)
        return image;
    enqueue(builder.fresh);
    return Image(std::move(kept));
}

// What the patches lie on is kept once for as long as it stays the same, so that a place which they
// have left costs nothing.
Image TileStore::keepPatched(const Image &image, const Image &previous) {
    const Image::Storage &patched = *image.storage_;
    const Image beneath = keep(patched.beneath, previous);
    if (beneath.isEmpty() || !beneath.storage_->tiles)
        return image;
    const bool related = !previous.isEmpty() && previous.storage_->tiles &&
                         previous.size() == image.size() && previous.hasAlpha() == image.hasAlpha();
    auto kept = std::make_shared<Image::Storage>();
    kept->identity = image.identity();
    kept->size = image.size();
    kept->alpha = image.hasAlpha();
    kept->beneath = beneath;
    kept->patched = patched.patched;
    Builder builder(memory_, {}, related ? previous.storage_->tiles.get() : nullptr, {});
    kept->tiles = builder.patchedTable(*beneath.storage_->tiles, patched);
    if (!kept->tiles)
        return image;
    enqueue(builder.fresh);
    return Image(std::move(kept));
}

void TileStore::enqueue(const std::vector<std::weak_ptr<Tile>> &tiles) {
    if (tiles.empty())
        return;
    {
        const std::lock_guard lock(mutex_);
        queue_.insert(queue_.end(), tiles.begin(), tiles.end());
    }
    changed_.notify_all();
}
