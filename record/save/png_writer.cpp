// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/save/png_writer.h"

#include <QPainter>
#include <QtEndian>

#include <libdeflate.h>

#include <algorithm>
#include <bit>

namespace {

/// Many enough that compression does not suffer, few enough that a change costs little.
constexpr int rowsOfBand = 16;

// PNG, sections 5 (chunks), 9 (filters) and 11.2.
constexpr std::uint8_t signature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr std::uint8_t bitsPerChannel = 8;
constexpr std::uint8_t colourRgb = 2;
constexpr std::uint8_t colourRgba = 6;
constexpr std::uint8_t filterLeft = 1;
constexpr std::uint8_t filterUp = 2;
constexpr std::size_t lengthAndName = 8;

/// RFC 1950: deflate with a window of 32 KiB, the fastest level.
constexpr std::uint8_t zlibHeader[] = {0x78, 0x01};
constexpr std::uint32_t adlerStart = 1;
constexpr std::uint32_t adlerModulus = 65521;

using Bytes = std::vector<std::uint8_t>;

void appendNumber(Bytes &to, std::uint32_t number) {
    std::uint8_t bytes[4];
    qToBigEndian(number, bytes);
    to.insert(to.end(), std::begin(bytes), std::end(bytes));
}

void appendBytes(Bytes &to, std::span<const std::uint8_t> bytes) {
    to.insert(to.end(), bytes.begin(), bytes.end());
}

void appendChunk(Bytes &to, const char (&name)[5], std::span<const std::uint8_t> data) {
    appendNumber(to, static_cast<std::uint32_t>(data.size()));
    const std::size_t checked = to.size();
    to.insert(to.end(), name, name + 4);
    appendBytes(to, data);
    appendNumber(to, libdeflate_crc32(0, &to[checked], to.size() - checked));
}

/// The Adler-32 of two pieces of data one after the other, by those of each. A sum of bytes starts
/// at 1, and the second sum adds up the first after every byte.
std::uint32_t adlerOfBoth(std::uint32_t first, std::uint32_t second, std::size_t secondLength) {
    constexpr std::uint64_t modulus = adlerModulus;
    const std::uint64_t sum = (first & 0xffff) + modulus - adlerStart;
    const std::uint64_t low = (sum + (second & 0xffff)) % modulus;
    const std::uint64_t high =
        ((first >> 16) + (second >> 16) + sum % modulus * (secondLength % modulus)) % modulus;
    return static_cast<std::uint32_t>(high << 16 | low);
}

/// Byte by byte, without borrowing from the neighbour.
std::uint32_t difference(std::uint32_t from, std::uint32_t what) {
    constexpr std::uint32_t highBits = 0x80808080u;
    return ((from | highBits) - (what & ~highBits)) ^ ((from ^ ~what) & highBits);
}

/// From the number 0xAARRGGBB to the bytes R, G, B, A.
void put(std::uint32_t colour, std::uint8_t *to) { qToBigEndian(std::rotl(colour, 8), to); }

/// Filters a row into the bytes at `to` and gives their end. Without alpha it writes a byte more,
/// which the next pixel covers.
std::uint8_t *filterRow(std::span<const QRgb> row, const QRgb *above, std::size_t channels,
                        std::uint8_t *to) {
    *to++ = above ? filterUp : filterLeft;
    put(above ? difference(row[0], above[0]) : row[0], to);
    const QRgb *against = above ? above + 1 : row.data();
    for (const QRgb colour : row.subspan(1))
        put(difference(colour, *against++), to += channels);
    return to + channels;
}

std::span<const QRgb> rowOf(const QImage &rows, int y) {
    return {reinterpret_cast<const QRgb *>(rows.constScanLine(y)),
            static_cast<std::size_t>(rows.width())};
}

int endOfBand(int band, const FrameFormat &format) {
    return std::min((band + 1) * rowsOfBand, format.size.height());
}

QImage overBlack(const QImage &pixels, QSize size) {
    QImage canvas(size, QImage::Format_RGB32);
    if (canvas.isNull())
        return canvas;
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    painter.drawImage(0, 0, pixels);
    return canvas;
}

} // namespace

QImage rowsOf(const Image &frame, const FrameFormat &format, ImageReader &reader) {
    const QImage pixels = reader.read(frame);
    if (pixels.isNull() && !frame.isEmpty())
        return pixels;
    const QImage fitting = pixels.size() == format.size ? pixels : overBlack(pixels, format.size);
    // An opaque picture has bytes of any value where the alpha would be.
    return format.alpha ? fitting.convertToFormat(QImage::Format_ARGB32_Premultiplied) : fitting;
}

int bandCount(const FrameFormat &format) {
    return (format.size.height() + rowsOfBand - 1) / rowsOfBand;
}

QRect bandIn(const FrameFormat &format, int band) {
    const int top = band * rowsOfBand;
    return {0, top, format.size.width(), endOfBand(band, format) - top};
}

PngBandWriter::PngBandWriter(const FrameFormat &format) : format_(format) {}

std::shared_ptr<const PngBand> PngBandWriter::write(const QImage &rows, int band) {
    const std::size_t channels = format_.alpha ? 4 : 3;
    const std::size_t width = static_cast<std::size_t>(rows.width());
    filtered_.resize(rowsOfBand * (1 + channels * width) + 1);
    std::uint8_t *end = filtered_.data();
    const QRgb *above = nullptr;
    for (int y = band * rowsOfBand; y < endOfBand(band, format_); ++y) {
        std::span<const QRgb> row = rowOf(rows, y);
        if (format_.alpha) {
            std::vector<QRgb> &into = plain_[y % 2];
            into.resize(width);
            std::transform(row.begin(), row.end(), into.begin(),
                           [](QRgb colour) { return qUnpremultiply(colour); });
            row = into;
        }
        end = filterRow(row, above, channels, end);
        above = row.data();
    }
    const std::span<const std::uint8_t> data(filtered_.data(), end);
    compressed_.clear();
    if (band == 0)
        appendBytes(compressed_, zlibHeader);
    pieces_.append(data, compressed_);

    auto made = std::make_shared<PngBand>();
    made->length = data.size();
    made->check = libdeflate_adler32(adlerStart, data.data(), data.size());
    made->chunk.reserve(compressed_.size() + lengthAndName + 4);
    appendChunk(made->chunk, "IDAT", compressed_);
    return made;
}

PngFile::PngFile(const PngBands &bands, const FrameFormat &format) : bands_(bands) {
    appendBytes(head_, signature);
    Bytes header;
    appendNumber(header, static_cast<std::uint32_t>(format.size.width()));
    appendNumber(header, static_cast<std::uint32_t>(format.size.height()));
    // Behind the colours: deflate, the five filters, rows in their order.
    appendBytes(header, std::array<std::uint8_t, 5>{
                            bitsPerChannel, format.alpha ? colourRgba : colourRgb, 0, 0, 0});
    appendChunk(head_, "IHDR", header);

    parts_.emplace_back(head_);
    std::uint32_t check = adlerStart;
    for (const auto &band : bands_) {
        parts_.emplace_back(band->chunk);
        check = adlerOfBoth(check, band->check, band->length);
    }
    Bytes end(std::begin(endOfPieces), std::end(endOfPieces));
    appendNumber(end, check);
    appendChunk(tail_, "IDAT", end);
    appendChunk(tail_, "IEND", {});
    parts_.emplace_back(tail_);
}
