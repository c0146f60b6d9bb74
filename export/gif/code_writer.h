// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gif {

/// Packs codes of changing width into bytes, lowest bit first, and the bytes into the blocks of at
/// most 255 that the format's image data consists of (GIF89a, section 22 and appendix F).
class CodeWriter {
public:
    void put(unsigned code, int width) {
        bits_ |= std::uint32_t(code) << held_;
        held_ += width;
        while (held_ >= 8) {
            putByte(std::uint8_t(bits_ & 0xFF));
            bits_ >>= 8;
            held_ -= 8;
        }
    }

    /// Writes what is left and the empty block that ends the data; the writer is empty afterwards.
    std::vector<std::uint8_t> finish() {
        if (held_ > 0)
            putByte(std::uint8_t(bits_ & 0xFF));
        bits_ = 0;
        held_ = 0;
        if (inBlock_ > 0) {
            bytes_[blockStart_] = std::uint8_t(inBlock_);
            inBlock_ = 0;
        }
        bytes_.push_back(0);
        return std::move(bytes_);
    }

    /// Bytes so far, those of blocks' lengths included.
    std::size_t size() const { return bytes_.size(); }

private:
    static constexpr int longestBlock = 255;

    void putByte(std::uint8_t byte) {
        if (inBlock_ == 0) {
            blockStart_ = bytes_.size();
            bytes_.push_back(0);
        }
        bytes_.push_back(byte);
        if (++inBlock_ == longestBlock) {
            bytes_[blockStart_] = longestBlock;
            inBlock_ = 0;
        }
    }

    std::vector<std::uint8_t> bytes_;
    std::uint32_t bits_ = 0;
    int held_ = 0;
    std::size_t blockStart_ = 0;
    int inBlock_ = 0;
};

} // namespace gif
