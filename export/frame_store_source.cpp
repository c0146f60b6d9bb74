// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/frame_store_source.h"

#include <QImage>
#include <QRegion>

#include <utility>

FrameStoreSource::FrameStoreSource(std::vector<Shown> frames) : frames_(std::move(frames)) {}

QSize FrameStoreSource::size() const {
    return frames_.empty() ? QSize(0, 0) : frames_.front().image.size();
}

bool FrameStoreSource::next(gif::Frame &frame) {
    if (next_ == frames_.size() || frames_[next_].image.size() != size())
        return false;
    const QImage &pixels = reader_.read(frames_[next_].image);
    if (pixels.isNull())
        return false;
    changed_.clear();
    for (const QRect &rect : reader_.changed())
        changed_.push_back({rect.x(), rect.y(), rect.width(), rect.height()});
    // Colours are multiplied by their opacity already, which is what they are over black.
    frame.pixels = reinterpret_cast<const std::uint32_t *>(pixels.constBits());
    frame.stride = pixels.bytesPerLine() / std::ptrdiff_t(sizeof(std::uint32_t));
    frame.delay = frames_[next_].delay;
    frame.changed = changed_;
    ++next_;
    return true;
}

bool FrameStoreSource::rewind() {
    next_ = 0;
    reader_ = ImageReader();
    return true;
}
