// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/picture_ring.h"

#include "platform/image/regions.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace x11 {

namespace {

// What piles up in a picture that waits for its turn is kept simple rather than exact.
constexpr int mostRectangles = 64;

QImage copyOf(const SharedPicture &picture, const QRect &part, PixelPool &pool) {
    QImage copy = pool.take(picture.size());
    if (copy.isNull())
        return copy;
    const std::ptrdiff_t stride = picture.size().width();
    const std::uint32_t *from = picture.pixels() + part.y() * stride + part.x();
    const auto bytes = static_cast<std::size_t>(part.width()) * sizeof *from;
    for (int y = part.top(); y <= part.bottom(); ++y, from += stride)
        std::memcpy(reinterpret_cast<std::uint32_t *>(copy.scanLine(y)) + part.x(), from, bytes);
    return copy;
}

} // namespace

PictureRing::PictureRing(Connection &connection, const PictureFormats &formats,
                         TransferMethod bestMethod)
    : connection_(connection), formats_(formats), bestMethod_(bestMethod) {
    shared_.reserve(mostShared);
}

void PictureRing::clear() {
    shared_.clear();
    reserve_ = {};
    latest_ = nullptr;
}

void PictureRing::resize(QSize size) {
    if (size == size_)
        return;
    clear();
    size_ = size;
}

void PictureRing::latestIsAs(const Turn &turn, const QRegion &where) {
    if (latest_ && latest_ != &turn)
        latest_->stale = latest_->stale.subtracted(where.subtracted(turn.stale));
}

void PictureRing::invalidate(const QRegion &changed) {
    if (changed.isEmpty())
        return;
    const auto add = [&changed](Turn &turn) {
        turn.stale = united(turn.stale, changed);
        if (turn.stale.rectCount() > mostRectangles)
            turn.stale = turn.stale.boundingRect();
    };
    std::ranges::for_each(shared_, add);
    add(reserve_);
}

PictureRing::Turn PictureRing::make(TransferMethod best) {
    auto picture = SharedPicture::create(connection_, formats_, size_, best);
    if (picture)
        method_ = picture->method();
    return {std::move(picture), QRect(QPoint(), size_)};
}

PictureRing::Turn *PictureRing::next() {
    const bool mayShare =
        bestMethod_ == TransferMethod::SharedPixmap &&
        method_.value_or(TransferMethod::SharedPixmap) == TransferMethod::SharedPixmap;
    if (mayShare) {
        const auto free =
            std::ranges::find_if(shared_, [](const auto &turn) { return !turn.picture->isHeld(); });
        if (free != shared_.end()) {
            if (latest_ != &reserve_)
                reserve_ = {};
            return &*free;
        }
        if (shared_.size() < mostShared)
            if (Turn turn = make(bestMethod_); turn.picture) {
                if (turn.picture->method() == TransferMethod::SharedPixmap)
                    return &shared_.emplace_back(std::move(turn));
                reserve_ = std::move(turn);
            }
    }
    if (!reserve_.picture)
        reserve_ = make(bestMethod_);
    return reserve_.picture ? &reserve_ : nullptr;
}

std::optional<Image> PictureRing::handOut(Turn &turn, const QRect &part, Image::Change change) {
    QImage pixels = &turn == &reserve_ ? copyOf(*turn.picture, part, *pool_) : turn.picture->view();
    if (pixels.isNull())
        return {};
    latest_ = &turn;
    return Image::fromQImage(std::move(pixels), std::move(change));
}

} // namespace x11
