// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/gif/slow_lzw.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// A file as this reader composed it: what a viewer shows after each picture.
struct SlowGif {
    struct Picture {
        int x, y, width, height;
        std::int64_t delay;
        std::vector<std::uint32_t> table; ///< its own or the file's
        int transparent;                  ///< -1 for none
        std::vector<std::uint32_t>
            shown; ///< the whole canvas, 0xRRGGBB; `nothing` where none wrote
    };
    static constexpr std::uint32_t nothing = 0xFF000000;

    int width = 0, height = 0;
    int repeats = -1; ///< -1 when the file does not say
    std::vector<Picture> pictures;
};

/// Reads the part of GIF89a that our files use, and refuses whatever else; none when the file
/// breaks a rule of the format.
class SlowGifReader {
public:
    explicit SlowGifReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::optional<SlowGif> read() {
        for (const char c : {'G', 'I', 'F', '8', '9', 'a'})
            if (byte() != std::uint8_t(c))
                return std::nullopt;
        gif_.width = word();
        gif_.height = word();
        const int flags = byte();
        byte();
        byte();
        if (flags & 0x80)
            shared_ = table(flags & 7);
        std::vector<std::uint32_t> canvas(std::size_t(gif_.width) * std::size_t(gif_.height),
                                          SlowGif::nothing);
        for (;;) {
            const int block = byte();
            if (block == 0x3B)
                return good_ && at_ == bytes_.size() ? std::optional(gif_) : std::nullopt;
            if (block == 0x21 ? !extension() : block != 0x2C || !picture(canvas))
                return std::nullopt;
        }
    }

private:
    std::uint8_t byte() {
        if (at_ < bytes_.size())
            return bytes_[at_++];
        good_ = false;
        return 0;
    }

    int word() {
        const int low = byte();
        return low | byte() << 8;
    }

    std::vector<std::uint32_t> table(int bits) {
        std::vector<std::uint32_t> entries(std::size_t(2) << bits);
        for (std::uint32_t &entry : entries) {
            const unsigned r = byte(), g = byte(), b = byte();
            entry = r << 16 | g << 8 | b;
        }
        return entries;
    }

    bool extension() {
        const int label = byte();
        if (label == 0xF9) {
            const int length = byte(), flags = byte();
            delay_ = word();
            const int index = byte();
            transparent_ = flags & 1 ? index : -1;
            return length == 4 && (flags & ~1) == 1 << 2 && byte() == 0;
        }
        at_ += 12; // 11 NETSCAPE2.0
        if (label != 0xFF || byte() != 3 || byte() != 1)
            return false;
        gif_.repeats = word();
        return byte() == 0;
    }

    bool picture(std::vector<std::uint32_t> &canvas) {
        SlowGif::Picture p{word(), word(), word(), word(), delay_, shared_, transparent_, {}};
        const int flags = byte();
        if (flags & 0x80)
            p.table = table(flags & 7);
        const int codeSize = byte();
        const std::size_t begin = at_;
        while (const int length = byte())
            at_ += std::size_t(length);
        if (!good_ || at_ > bytes_.size() || p.width < 1 || p.height < 1 || codeSize < 2 ||
            codeSize > 8 || p.x + p.width > gif_.width || p.y + p.height > gif_.height)
            return false;
        const auto lzw = decodeSlowly(bytes_.subspan(begin, at_ - begin), codeSize);
        if (!lzw || lzw->indices.size() != std::size_t(p.width) * std::size_t(p.height))
            return false;
        for (std::size_t i = 0; i < lzw->indices.size(); ++i) {
            const auto index = lzw->indices[i];
            const std::size_t x = std::size_t(p.x) + i % std::size_t(p.width),
                              y = std::size_t(p.y) + i / std::size_t(p.width);
            if (int(index) == p.transparent)
                continue;
            if (index >= p.table.size())
                return false;
            canvas[y * std::size_t(gif_.width) + x] = p.table[index];
        }
        p.shown = canvas;
        gif_.pictures.push_back(std::move(p));
        transparent_ = -1;
        delay_ = 0;
        return true;
    }

    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
    bool good_ = true;
    SlowGif gif_;
    std::vector<std::uint32_t> shared_;
    std::int64_t delay_ = 0;
    int transparent_ = -1;
};
