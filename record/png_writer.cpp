// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/png_writer.h"

#include <QPainter>

#include <png.h>

#include <csetjmp>
#include <exception>

namespace {

constexpr int fastestLevel = 1;
constexpr int bitsPerChannel = 8;
constexpr std::size_t outputBuffer = 1 << 20; // bytes; chunks of the file are of this size

void append(png_structp writer, png_bytep data, png_size_t length) {
    auto *file = static_cast<std::vector<std::uint8_t> *>(png_get_io_ptr(writer));
    bool full = false;
    try {
        file->insert(file->end(), data, data + length);
    } catch (const std::exception &) {
        full = true;
    }
    // Not from inside the handler: the library leaves by a long jump.
    if (full)
        png_error(writer, "no memory");
}

void flush(png_structp) {}
/// The caller learns of an error by the missing result; the library must not print it.
void ignoreWarning(png_structp, png_const_charp) {}
void leave(png_structp writer, png_const_charp) { png_longjmp(writer, 1); }

void fillRow(const QRgb *from, int count, bool alpha, std::uint8_t *to) {
    for (int pixel = 0; pixel < count; ++pixel) {
        const QRgb colour = alpha ? qUnpremultiply(from[pixel]) : from[pixel];
        *to++ = static_cast<std::uint8_t>(qRed(colour));
        *to++ = static_cast<std::uint8_t>(qGreen(colour));
        *to++ = static_cast<std::uint8_t>(qBlue(colour));
        if (alpha)
            *to++ = static_cast<std::uint8_t>(qAlpha(colour));
    }
}

/// Everything that has a destructor is made by the caller: the long jump out of the library would
/// pass over it.
bool writeRows(png_structp writer, png_infop info, const QImage &pixels, bool alpha,
               std::vector<std::uint8_t> &row) {
    if (setjmp(png_jmpbuf(writer)) != 0)
        return false;
    png_set_compression_level(writer, fastestLevel);
    png_set_compression_buffer_size(writer, outputBuffer);
    png_set_filter(writer, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
    png_set_IHDR(writer, info, static_cast<png_uint_32>(pixels.width()),
                 static_cast<png_uint_32>(pixels.height()), bitsPerChannel,
                 alpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writer, info);
    for (int y = 0; y < pixels.height(); ++y) {
        fillRow(reinterpret_cast<const QRgb *>(pixels.constScanLine(y)), pixels.width(), alpha,
                row.data());
        png_write_row(writer, row.data());
    }
    png_write_end(writer, info);
    return true;
}

/// The picture in the recording's size, over opaque black.
QImage overBlack(const QImage &pixels, QSize size) {
    QImage canvas(size, QImage::Format_RGB32);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    painter.drawImage(0, 0, pixels);
    return canvas;
}

} // namespace

std::vector<std::uint8_t> encodePng(const QImage &pixels, const FrameFormat &format) {
    std::vector<std::uint8_t> file;
    const bool fits = pixels.size() == format.size;
    const QImage picture = fits ? pixels : overBlack(pixels, format.size);
    if (picture.isNull())
        return file;
    // An opaque picture in a format with alpha has bytes of any value where the alpha would be.
    const QImage rows =
        format.alpha ? picture.convertToFormat(QImage::Format_ARGB32_Premultiplied) : picture;
    const std::size_t channels = format.alpha ? 4 : 3;
    std::vector<std::uint8_t> row(channels * static_cast<std::size_t>(rows.width()));
    png_structp writer =
        png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, ignoreWarning);
    png_infop info = writer ? png_create_info_struct(writer) : nullptr;
    bool written = false;
    if (info) {
        png_set_write_fn(writer, &file, append, flush);
        written = writeRows(writer, info, rows, format.alpha, row);
    }
    png_destroy_write_struct(&writer, &info);
    if (!written)
        file.clear();
    return file;
}
