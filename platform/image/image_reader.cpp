// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/image_reader.h"

#include "platform/image/image_storage.h"

#include <utility>

const QImage &ImageReader::read(const Image &image) {
    const auto changes = image.changesSince(read_);
    changed_ = changes.value_or(QRegion(QRect(QPoint(), image.size())));
    const Image before = std::exchange(read_, image);
    if (image.isEmpty()) {
        pixels_ = QImage();
        return pixels_;
    }
    if (!image.storage_->whole.isNull()) {
        // Looked into where it is: nothing is copied.
        pixels_ = image.toQImage();
        return pixels_;
    }
    // Ours to write to, and of the right size, when it was put together the last time too.
    const bool ours = !before.isEmpty() && before.storage_->whole.isNull() && !pixels_.isNull() &&
                      pixels_.size() == image.size() &&
                      pixels_.format() == image.storage_->format();
    if (!ours)
        pixels_ = QImage(image.size(), image.storage_->format());
    if (!pixels_.isNull())
        image.storage_->read(pixels_, ours ? changed_ : QRegion(pixels_.rect()));
    return pixels_;
}
