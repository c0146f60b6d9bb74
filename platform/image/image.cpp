// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/image.h"

#include "platform/image/image_storage.h"

#include <atomic>
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

} // namespace

Image Image::fromQImage(QImage pixels, Change change) {
    if (pixels.isNull())
        return {};
    const bool alpha = pixels.hasAlphaChannel();
    pixels.setDevicePixelRatio(1.0);
    pixels.convertTo(alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const QSize size = pixels.size();
    return Image(std::make_shared<const Storage>(
        Storage{nextIdentity(), size, alpha, std::move(change), std::move(pixels), nullptr}));
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
    return {};
}

QImage Image::toQImage() const {
    if (!storage_ || !storage_->tiles)
        return storage_ ? storage_->whole : QImage();
    QImage pixels(storage_->size, storage_->format());
    if (!pixels.isNull())
        storage_->tiles->read(pixels, pixels.rect());
    return pixels;
}

Image Image::cut(const QRect &part, Change change) const {
    const QImage whole = toQImage();
    if (whole.isNull())
        return {};
    return fromQImage(lookInto(whole, part), std::move(change));
}
