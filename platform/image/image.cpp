// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/image.h"

#include "platform/image/image_storage.h"
#include "platform/image/regions.h"

#include <atomic>
#include <cstring>
#include <utility>

namespace {

Image::Identity nextIdentity() {
    static std::atomic<Image::Identity> last = 0;
    return ++last;
}

// The pixels of `part` where `picture` has them: the result keeps the memory that it looks into.
QImage lookInto(const QImage &picture, const QRect &part) {
    const uchar *corner = picture.constScanLine(part.y()) + std::ptrdiff_t{4} * part.x();
    const auto release = [](void *holder) { delete static_cast<QImage *>(holder); };
    return QImage(corner, part.width(), part.height(), picture.bytesPerLine(), picture.format(),
                  release, std::make_unique<QImage>(picture).release());
}

void copyPixels(const QImage &from, const QRect &part, QImage &to, const QPoint &corner) {
    const auto bytes = static_cast<std::size_t>(part.width()) * sizeof(std::uint32_t);
    for (int row = 0; row < part.height(); ++row)
        std::memcpy(to.scanLine(corner.y() + row) + std::ptrdiff_t{4} * corner.x(),
                    from.constScanLine(part.y() + row) + std::ptrdiff_t{4} * part.x(), bytes);
}

} // namespace

Image Image::fromQImage(QImage pixels, Change change) {
    if (pixels.isNull())
        return {};
    const bool alpha = pixels.hasAlphaChannel();
    pixels.setDevicePixelRatio(1.0);
    pixels.convertTo(alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const QSize size = pixels.size();
    return Image(std::make_shared<const Storage>(Storage{
        nextIdentity(), size, alpha, std::move(change), std::move(pixels), {}, {}, {}, {}}));
}

Image Image::withPatches(std::vector<ImagePatch> patches) const {
    if (isEmpty())
        return {};
    QRegion places;
    for (const ImagePatch &patch : patches)
        places = united(places, QRect(patch.corner, patch.pixels.size()));
    return Image(std::make_shared<const Storage>(Storage{
        nextIdentity(), size(), hasAlpha(), {}, {}, {}, *this, places, std::move(patches)}));
}

QSize Image::size() const { return storage_ ? storage_->size : QSize(0, 0); }

bool Image::hasAlpha() const { return storage_ && storage_->alpha; }

Image::Identity Image::identity() const { return storage_ ? storage_->identity : 0; }

std::optional<QRegion> Image::changesSince(const Image &earlier) const {
    if (sameAs(earlier))
        return QRegion();
    if (isEmpty() || earlier.isEmpty() || size() != earlier.size() ||
        hasAlpha() != earlier.hasAlpha())
        return {};
    if (storage_->change.since == earlier.identity())
        return storage_->change.region;
    if (storage_->tiles && earlier.storage_->tiles)
        return storage_->tiles->differsFrom(*earlier.storage_->tiles);
    if (storage_->beneath.isEmpty() && earlier.storage_->beneath.isEmpty())
        return {};
    const Image &under = storage_->beneath.isEmpty() ? *this : storage_->beneath;
    const Image &underEarlier =
        earlier.storage_->beneath.isEmpty() ? earlier : earlier.storage_->beneath;
    auto changes = under.changesSince(underEarlier);
    if (changes)
        changes = united(united(*changes, storage_->patched), earlier.storage_->patched);
    return changes;
}

QImage Image::toQImage() const {
    if (!storage_ || !storage_->whole.isNull())
        return storage_ ? storage_->whole : QImage();
    QImage pixels(storage_->size, storage_->format());
    if (!pixels.isNull())
        storage_->read(pixels, pixels.rect());
    return pixels;
}

void Image::Storage::read(QImage &picture, const QRegion &where) const {
    if (tiles) {
        tiles->read(picture, where);
        return;
    }
    if (beneath.isEmpty()) {
        for (const QRect &part : where.intersected(whole.rect()))
            copyPixels(whole, part, picture, part.topLeft());
        return;
    }
    beneath.storage_->read(picture, where);
    // Tiles beneath are read whole: whatever lies on one of them has to be put back.
    QRegion touched = where;
    if (beneath.storage_->tiles)
        touched = patched;
    for (const ImagePatch &patch : patches) {
        const QRect place(patch.corner, patch.pixels.size());
        for (const QRect &part : touched.intersected(place))
            copyPixels(patch.pixels, part.translated(-patch.corner), picture, part.topLeft());
    }
}

Image Image::cut(const QRect &part, Change change) const {
    const QImage whole = toQImage();
    if (whole.isNull())
        return {};
    return fromQImage(lookInto(whole, part), std::move(change));
}
