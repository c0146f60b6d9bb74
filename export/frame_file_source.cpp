// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/frame_file_source.h"

#include <QImageReader>

#include <utility>

FrameFileSource::FrameFileSource(std::vector<Shown> frames) : frames_(std::move(frames)) {
    if (!frames_.empty())
        size_ = QImageReader(frames_.front().file, "png").size();
    whole_ = {0, 0, size_.width(), size_.height()};
}

bool FrameFileSource::next(gif::Frame &frame) {
    if (next_ == frames_.size())
        return false;
    const Shown &shown = frames_[next_];
    const bool repeated = next_ > 0 && frames_[next_ - 1].file == shown.file;
    if (!repeated) {
        pixels_ = QImageReader(shown.file, "png").read();
        if (pixels_.isNull() || pixels_.size() != size_)
            return false;
        // Multiplied by their opacity, colours are what they are over black.
        pixels_.convertTo(pixels_.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                    : QImage::Format_RGB32);
    }
    frame.pixels = reinterpret_cast<const std::uint32_t *>(pixels_.constBits());
    frame.stride = pixels_.bytesPerLine() / std::ptrdiff_t(sizeof(std::uint32_t));
    frame.delay = shown.delay;
    frame.changed = {&whole_, repeated ? 0U : 1U};
    ++next_;
    return true;
}

bool FrameFileSource::rewind() {
    next_ = 0;
    return true;
}
