// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/frame_source.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <cstdint>
#include <vector>

/// Hands the frame files of a recording to the GIF encoder, for when there is no frame store. Which
/// parts of a file differ from the one before is not known, so every file counts as changed as a
/// whole. Transparent pixels are black.
class FrameFileSource : public gif::FrameSource {
public:
    struct Shown {
        QString file;           ///< absolute; the same file twice in a row is read once
        std::int64_t delay = 0; ///< 1/100 s
    };

    /// A file that is missing, broken or of another size than the first one ends the source before
    /// it.
    explicit FrameFileSource(std::vector<Shown> frames);

    /// Size of the first file; empty when there is none that can be read.
    QSize size() const { return size_; }

    bool next(gif::Frame &frame) override;
    bool rewind() override;

private:
    std::vector<Shown> frames_;
    QSize size_;
    std::size_t next_ = 0;
    QImage pixels_;
    gif::Rect whole_;
};
