// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

#include <cstddef>
#include <memory>
#include <mutex>
#include <vector>

/// Memory for pictures of one size that come and go many times a second.
///
/// Most of the cost of a picture in fresh memory is the kernel's, which hands out every page at its
/// first touch. Pictures made here give their memory back when the last handle on them ends, on
/// whatever thread that is, and the next picture takes it, pages touched. Only a few idle buffers
/// are kept, and only of the size that was asked for last, so that a program at rest holds little.
class PixelPool : public std::enable_shared_from_this<PixelPool> {
public:
    /// Idle buffers that are kept: what a grab needs while the preview still holds the grabs before
    /// it.
    static constexpr std::size_t mostIdle = 2;

    /// A pool that lives as long as its owners and its pictures.
    static std::shared_ptr<PixelPool> create();
    ~PixelPool();
    PixelPool(const PixelPool &) = delete;
    PixelPool &operator=(const PixelPool &) = delete;

    /// A picture of this size in Format_RGB32, rows without gaps, whose pixels are undefined. It
    /// may outlive every other handle on the pool. A null picture when memory has run out.
    QImage take(QSize size);

    /// Buffers that are idle now.
    std::size_t idleCount() const;

private:
    struct Buffer;
    PixelPool() = default;
    void giveBack(void *memory, std::size_t bytes);

    mutable std::mutex mutex_;
    std::size_t bytes_ = 0; // of each idle buffer
    std::vector<void *> idle_;
};
