// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/tile.h"

#include <memory>

/// What is behind an `Image`: one plain picture as a grab yields it, or tiles as a recording keeps
/// it. For the platform's own use.
struct Image::Storage {
    Identity identity = 0;
    QSize size;
    bool alpha = false;
    Change change;

    QImage whole; ///< null when the picture is kept as tiles
    std::shared_ptr<const TileTable> tiles;

    QImage::Format format() const {
        return alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    }
};
