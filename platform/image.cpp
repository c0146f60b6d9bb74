// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image.h"

#include <utility>

struct Image::Storage {
    QImage pixels;
};

Image Image::fromQImage(QImage pixels) {
    Image image;
    if (pixels.isNull())
        return image;
    const QImage::Format format =
        pixels.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    pixels.setDevicePixelRatio(1.0);
    pixels.convertTo(format);
    image.storage_ = std::make_shared<const Storage>(Storage{std::move(pixels)});
    return image;
}

QSize Image::size() const { return storage_ ? storage_->pixels.size() : QSize(0, 0); }

bool Image::hasAlpha() const { return storage_ && storage_->pixels.hasAlphaChannel(); }

QImage Image::toQImage() const { return storage_ ? storage_->pixels : QImage(); }
