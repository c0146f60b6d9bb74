// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// What a decoder that keeps every phrase as a list met.
struct SlowLzw {
    std::vector<std::uint8_t> indices;
    std::vector<std::size_t> ends; ///< pixels decoded after each code
    /// Codes after which the next one was wider.
    std::vector<std::size_t> widened;
    int clears = 0;         ///< but for the first
    int fullAtEnd = 0;      ///< 1 when the table was full as the end came
    int codesAtEnd = 0;     ///< codes between the last clear code and the end
    std::size_t filled = 0; ///< how often the table became full
};

/// Decodes image data (blocks, without the byte of the code size) by appendix F of GIF89a; none
/// when it breaks a rule.
inline std::optional<SlowLzw> decodeSlowly(std::span<const std::uint8_t> data, int codeSize) {
    std::vector<bool> bits;
    std::size_t at = 0;
    while (at < data.size() && data[at] != 0) {
        const std::size_t length = data[at++];
        if (at + length >= data.size())
            return std::nullopt;
        for (std::size_t i = 0; i < length * 8; ++i)
            bits.push_back(data[at + i / 8] >> (i % 8) & 1);
        at += length;
    }
    if (at + 1 != data.size())
        return std::nullopt;

    const unsigned clear = 1u << codeSize;
    SlowLzw result;
    std::vector<std::vector<std::uint8_t>> phrases;
    const auto restart = [&] {
        phrases.assign(clear + 2, {});
        for (unsigned i = 0; i < clear; ++i)
            phrases[i] = {std::uint8_t(i)};
    };
    restart();
    std::size_t width = std::size_t(codeSize) + 1, bit = 0, codes = 0;
    bool begun = false;
    std::vector<std::uint8_t> last;
    while (bit + width <= bits.size()) {
        unsigned code = 0;
        for (std::size_t i = 0; i < width; ++i)
            code |= unsigned(bits[bit++]) << i;
        if (code == clear) {
            result.clears += begun;
            begun = true;
            restart();
            width = std::size_t(codeSize) + 1;
            last.clear();
            result.codesAtEnd = 0;
            continue;
        }
        if (code == clear + 1) {
            result.fullAtEnd = phrases.size() == 4096;
            // Nothing but the rest of a byte may follow.
            return bits.size() - bit < 8 && begun ? std::optional(result) : std::nullopt;
        }
        std::vector<std::uint8_t> phrase;
        if (code < phrases.size())
            phrase = phrases[code];
        else if (code == phrases.size() && !last.empty() && phrases.size() < 4096) {
            phrase = last;
            phrase.push_back(last.front());
        } else
            return std::nullopt;
        if (!last.empty() && phrases.size() < 4096) {
            last.push_back(phrase.front());
            phrases.push_back(last);
            result.filled += phrases.size() == 4096;
        }
        result.indices.insert(result.indices.end(), phrase.begin(), phrase.end());
        result.ends.push_back(result.indices.size());
        last = phrase;
        ++codes;
        ++result.codesAtEnd;
        if (phrases.size() == 1u << width && width < 12) {
            ++width;
            result.widened.push_back(codes);
        }
    }
    return std::nullopt;
}
