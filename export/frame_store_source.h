// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/frame_source.h"
#include "platform/image/image.h"
#include "platform/image/image_reader.h"

#include <QSize>

#include <cstdint>
#include <span>
#include <vector>

/// Hands the frames of a recording to the GIF encoder, each at the cost of what differs from the
/// one before. Transparent pixels are black. For the size of the recording; a `gif::ScalingSource`
/// around it makes other sizes.
class FrameStoreSource : public gif::FrameSource {
public:
    struct Shown {
        Image image;
        std::int64_t delay = 0; ///< 1/100 s
    };

    /// All frames have the size of the first one, as those of a recording do; one that has not, or
    /// that cannot be read, ends the source before it.
    explicit FrameStoreSource(std::vector<Shown> frames);

    /// 0 by 0 without frames.
    QSize size() const;

    /// Frames that were handed out since the beginning; less than all of them at the end when one
    /// was broken.
    std::size_t handedOut() const { return next_; }

    bool next(gif::Frame &frame) override;
    bool rewind() override;

private:
    std::vector<Shown> frames_;
    std::size_t next_ = 0;
    ImageReader reader_;
    std::vector<gif::Rect> changed_;
};
