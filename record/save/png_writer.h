// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/image_reader.h"
#include "record/save/deflate_piece.h"

#include <QImage>

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

/// PNG files of a recording, made for speed, in bands of a few rows: a band that is the same as in
/// the frame before is taken over as it was written there. Every other band is compressed alone, at
/// the lowest level, each row as its difference from the one above and the first of the band from
/// the pixel to its left.

/// What all frames of one recording have in common as files: encoders give up when the size or the
/// pixel format changes in the middle of a sequence.
struct FrameFormat {
    QSize size;
    /// RGBA (not premultiplied) instead of RGB, 8 bits each.
    bool alpha = false;
};

/// The rows of `frame` in the format's size, 32 bits a pixel: premultiplied with alpha, else with
/// bytes of any value in its place. A picture of another size is put into the upper left corner
/// over black, and what is transparent is over black where the format has no alpha. Null when
/// there is no memory for it. To be let go before `reader` reads again.
QImage rowsOf(const Image &frame, const FrameFormat &format, ImageReader &reader);

/// How many bands a picture of this format has, from the top down.
int bandCount(const FrameFormat &format);

/// Where the band `band` is in the picture.
QRect bandIn(const FrameFormat &format, int band);

/// A band as it is written in a file.
struct PngBand {
    std::vector<std::uint8_t> chunk;
    std::size_t length = 0;  // bytes before they were compressed
    std::uint32_t check = 0; // Adler-32 of these
};
/// All bands of a frame; bands may be shared between frames.
using PngBands = std::vector<std::shared_ptr<const PngBand>>;

/// Compresses bands; one thread at a time.
class PngBandWriter {
public:
    /// Throws std::bad_alloc, as `write` does.
    explicit PngBandWriter(const FrameFormat &format);

    /// The band `band` of a picture, whose `rows` are as `rowsOf` gives them.
    std::shared_ptr<const PngBand> write(const QImage &rows, int band);

private:
    const FrameFormat format_;
    DeflatePieces pieces_;
    /// A row and the one above, their colours not multiplied by their alpha.
    std::vector<QRgb> plain_[2];
    std::vector<std::uint8_t> filtered_;
    std::vector<std::uint8_t> compressed_;
};

/// The whole file, in parts that follow one another.
class PngFile {
public:
    /// `bands` are all of the picture's, from the top down.
    PngFile(const PngBands &bands, const FrameFormat &format);

    /// Valid as long as this object.
    std::span<const std::span<const std::uint8_t>> parts() const { return parts_; }

private:
    const PngBands bands_;
    std::vector<std::uint8_t> head_;
    std::vector<std::uint8_t> tail_;
    std::vector<std::span<const std::uint8_t>> parts_;
};
