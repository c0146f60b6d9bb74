// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <cstdint>
#include <vector>

/// What all frames of one recording have in common as files: encoders give up when the size or the
/// pixel format changes in the middle of a sequence.
struct FrameFormat {
    QSize size;
    /// RGBA (not premultiplied) instead of RGB, 8 bits each.
    bool alpha = false;
};

/// A whole PNG file of `pixels` (Format_RGB32 or Format_ARGB32_Premultiplied) in `format`, made for
/// speed: the lowest compression level, each row as its difference from the one above. A picture of
/// another size is put into the upper left corner over black, and what is transparent stands over
/// black where the format has no alpha. Empty when the picture cannot be encoded (no memory).
std::vector<std::uint8_t> encodePng(const QImage &pixels, const FrameFormat &format);
