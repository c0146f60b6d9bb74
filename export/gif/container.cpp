// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/container.h"

#include <algorithm>
#include <bit>
#include <string_view>

namespace gif {
namespace {

using Bytes = std::vector<std::uint8_t>;

void putText(Bytes &bytes, std::string_view text) {
    for (const char c : text)
        bytes.push_back(std::uint8_t(c));
}

void putShort(Bytes &bytes, std::int64_t value) {
    bytes.push_back(std::uint8_t(value & 0xFF));
    bytes.push_back(std::uint8_t(value >> 8 & 0xFF));
}

/// Tables have a power of two of entries, 2 at least: the exponent less 1.
int tableBits(std::size_t entries) {
    return std::max(int(std::bit_width(std::max(entries, std::size_t(2)) - 1)) - 1, 0);
}

void putTable(Bytes &bytes, std::span<const Rgb> table) {
    for (const Rgb colour : table) {
        bytes.push_back(std::uint8_t(colour >> 16));
        bytes.push_back(std::uint8_t(colour >> 8 & 0xFF));
        bytes.push_back(std::uint8_t(colour & 0xFF));
    }
    const std::size_t entries = std::size_t(2) << tableBits(table.size());
    bytes.resize(bytes.size() + 3 * (entries - table.size()));
}

constexpr std::uint8_t extension = 0x21, applicationLabel = 0xFF, controlLabel = 0xF9,
                       imageSeparator = 0x2C, hasTable = 0x80, leaveInPlace = 1 << 2,
                       hasTransparent = 1;

} // namespace

Bytes fileBeginning(int width, int height, std::span<const Rgb> table,
                    std::optional<std::uint16_t> repeats) {
    constexpr std::uint8_t eightBitsPerColour = 7 << 4;
    Bytes bytes;
    putText(bytes, "GIF89a");
    putShort(bytes, width);
    putShort(bytes, height);
    bytes.push_back(std::uint8_t(eightBitsPerColour |
                                 (table.empty() ? 0 : hasTable | tableBits(table.size()))));
    bytes.push_back(0); // background
    bytes.push_back(0); // pixels are square
    if (!table.empty())
        putTable(bytes, table);
    if (repeats) {
        for (const std::uint8_t byte : {extension, applicationLabel, std::uint8_t(11)})
            bytes.push_back(byte);
        putText(bytes, "NETSCAPE2.0");
        bytes.push_back(3);
        bytes.push_back(1);
        putShort(bytes, *repeats);
        bytes.push_back(0);
    }
    return bytes;
}

Bytes pictureBytes(const CodedPicture &picture, std::int64_t delay) {
    Bytes bytes;
    const bool transparent = picture.transparent >= 0;
    for (const std::uint8_t byte : {extension, controlLabel, std::uint8_t(4)})
        bytes.push_back(byte);
    bytes.push_back(std::uint8_t(leaveInPlace | (transparent ? hasTransparent : 0)));
    putShort(bytes, delay);
    bytes.push_back(std::uint8_t(transparent ? picture.transparent : 0));
    bytes.push_back(0);

    bytes.push_back(imageSeparator);
    putShort(bytes, picture.box.x);
    putShort(bytes, picture.box.y);
    putShort(bytes, picture.box.width);
    putShort(bytes, picture.box.height);
    if (picture.table.empty())
        bytes.push_back(0);
    else {
        // The transparent index needs an entry, too.
        std::vector<Rgb> table = picture.table;
        table.resize(std::max(table.size(), std::size_t(picture.transparent + 1)));
        bytes.push_back(std::uint8_t(hasTable | tableBits(table.size())));
        putTable(bytes, table);
    }
    bytes.push_back(std::uint8_t(picture.codeSize));
    bytes.insert(bytes.end(), picture.data.begin(), picture.data.end());
    return bytes;
}

} // namespace gif
