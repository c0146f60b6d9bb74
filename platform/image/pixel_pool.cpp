// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/pixel_pool.h"

#include <sys/mman.h>

#include <utility>

// Mapped rather than allocated: what is given up goes back to the system at once, whatever the
// allocator thinks of it.
struct PixelPool::Buffer {
    std::shared_ptr<PixelPool> pool;
    void *memory = nullptr;
    std::size_t bytes = 0;

    static void release(void *buffer) {
        const std::unique_ptr<Buffer> owned(static_cast<Buffer *>(buffer));
        owned->pool->giveBack(owned->memory, owned->bytes);
    }
};

std::shared_ptr<PixelPool> PixelPool::create() {
    return std::shared_ptr<PixelPool>(new PixelPool); // the constructor is ours alone
}

PixelPool::~PixelPool() {
    for (void *memory : idle_)
        munmap(memory, bytes_);
}

QImage PixelPool::take(QSize size) {
    if (size.isEmpty())
        return {};
    const auto stride = static_cast<std::size_t>(size.width()) * sizeof(std::uint32_t);
    const std::size_t bytes = stride * static_cast<std::size_t>(size.height());
    void *memory = nullptr;
    {
        const std::lock_guard lock(mutex_);
        if (bytes_ != bytes) {
            for (void *old : std::exchange(idle_, {}))
                munmap(old, bytes_);
            bytes_ = bytes;
        }
        if (!idle_.empty()) {
            memory = idle_.back();
            idle_.pop_back();
        }
    }
    if (!memory) {
        memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED)
            return {};
        // Where the system admits it, fewer and larger pages to touch.
        madvise(memory, bytes, MADV_HUGEPAGE);
    }
    auto buffer = std::unique_ptr<Buffer>(new Buffer{shared_from_this(), memory, bytes});
    return QImage(static_cast<uchar *>(memory), size.width(), size.height(),
                  static_cast<qsizetype>(stride), QImage::Format_RGB32, Buffer::release,
                  buffer.release());
}

void PixelPool::giveBack(void *memory, std::size_t bytes) {
    {
        const std::lock_guard lock(mutex_);
        if (bytes == bytes_ && idle_.size() < mostIdle) {
            idle_.push_back(memory);
            return;
        }
    }
    munmap(memory, bytes);
}

std::size_t PixelPool::idleCount() const {
    const std::lock_guard lock(mutex_);
    return idle_.size();
}
