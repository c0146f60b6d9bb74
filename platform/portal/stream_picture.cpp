// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/portal/stream_picture.h"

#include "platform/image/regions.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace {

constexpr std::uint32_t colourBits = 0x00ffffff;
constexpr std::uint32_t opaque = 0xff000000;

/// Beyond those that are in use: what the next frames need without asking for fresh memory.
constexpr std::ptrdiff_t mostIdle = 2;

PixelRows rowsOf(const QImage &picture) {
    return {reinterpret_cast<const std::uint32_t *>(picture.constBits()), picture.width()};
}

/// Nobody else has it. The memory of those who had it is seen from here on.
bool isIdle(const QImage &picture) {
    const bool alone = picture.isDetached();
    std::atomic_thread_fence(std::memory_order_acquire);
    return alone;
}

void copy(const PixelRows &from, QImage &to, const QRegion &where) {
    auto *pixels = reinterpret_cast<std::uint32_t *>(to.bits());
    for (const QRect &place : where)
        for (int y = place.top(); y <= place.bottom(); ++y) {
            const std::uint32_t *source = from.first + y * from.stride + place.left();
            std::uint32_t *target = pixels + std::ptrdiff_t{y} * to.width() + place.left();
            for (int x = 0; x < place.width(); ++x)
                target[x] = source[x] | opaque;
        }
}

} // namespace

void StreamPicture::put(const PixelRows &rows, QSize size, Order order) {
    const PixelRows frame = order == Order::RedFirst ? turned(rows, size) : rows;
    const QRegion all(QRect(QPoint(), size));
    const bool goesOn = newest_.size() == size;
    const QRegion differing =
        goesOn ? differingTiles(frame, rowsOf(newest_), size, all, colourBits) : all;
    if (differing.isEmpty())
        return;
    if (!goesOn)
        slots_.clear();
    for (Slot &slot : slots_)
        slot.stale = united(slot.stale, differing);
    Slot &slot = idleSlot(size);
    copy(frame, slot.pixels, slot.stale);
    slot.stale = QRegion();

    const std::lock_guard lock(mutex_);
    newest_ = slot.pixels;
    if (!goesOn)
        changed_.reset();
    else if (changed_)
        changed_ = united(*changed_, differing);
    isNew_ = true;
}

StreamPicture::Slot &StreamPicture::idleSlot(QSize size) {
    // The newest picture is never idle: this class has it twice.
    const auto idle = [](const Slot &slot) { return isIdle(slot.pixels); };
    std::ptrdiff_t spare = std::ranges::count_if(slots_, idle) - mostIdle;
    std::erase_if(slots_, [&](const Slot &slot) { return idle(slot) && spare-- > 0; });
    const auto found = std::ranges::find_if(slots_, idle);
    if (found != slots_.end())
        return *found;
    slots_.push_back({QImage(size, QImage::Format_RGB32), QRect(QPoint(), size)});
    return slots_.back();
}

PixelRows StreamPicture::turned(const PixelRows &rows, QSize size) {
    turned_.resize(static_cast<std::size_t>(size.width()) *
                   static_cast<std::size_t>(size.height()));
    std::uint32_t *target = turned_.data();
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const std::uint32_t pixel = rows.first[y * rows.stride + x];
            *target++ = (pixel & 0x0000ff00) | (pixel & 0xff) << 16 | (pixel >> 16 & 0xff);
        }
    return {turned_.data(), size.width()};
}

std::optional<Image> StreamPicture::take() {
    const std::lock_guard lock(mutex_);
    if (newest_.isNull())
        return {};
    if (isNew_) {
        Image::Change change;
        if (changed_)
            change = {taken_.identity(), *changed_};
        taken_ = Image::fromQImage(newest_, std::move(change));
        isNew_ = false;
        changed_ = QRegion();
    }
    return taken_;
}
