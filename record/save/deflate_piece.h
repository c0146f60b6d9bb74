// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

/// Raw deflate (RFC 1951) in pieces that are made apart and put one after another in one stream, so
/// that a piece whose data did not change serves again.
///
/// The compressor that is fast enough, libdeflate, makes whole streams only: the last block says
/// that it is the last, and the stream ends within a byte. Zlib could flush instead, but takes 1.3
/// to 1.9 times as long for pictures full of noise, and these are what a save waits for. So a
/// finished stream is opened again, by the format's rules alone and not by what the compressor is
/// known to do: its codes are followed, without the data being unpacked, to where the last block
/// begins and where it ends; the mark of the last block is taken away; and an empty stored block
/// leads to the next whole byte, as a flush would. No piece looks back beyond its own beginning.

struct libdeflate_compressor;

/// Makes pieces, for speed and not for size. One thread at a time.
class DeflatePieces {
public:
    /// Throws std::bad_alloc.
    DeflatePieces();
    ~DeflatePieces();

    /// Appends the piece that holds `data` to `to`. Throws std::bad_alloc.
    void append(std::span<const std::uint8_t> data, std::vector<std::uint8_t> &to);

private:
    struct Codes;
    libdeflate_compressor *compressor_;
    std::unique_ptr<Codes> codes_;
};

/// What ends a stream of pieces: an empty last block.
inline constexpr std::uint8_t endOfPieces[] = {0x03, 0x00};
