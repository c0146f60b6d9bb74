// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/tile.h"

#include <QRegion>

#include <memory>
#include <vector>

/// What is behind an `Image`: one plain picture as a grab yields it, tiles as a recording keeps it,
/// or patches on another image. For the platform's own use.
struct Image::Storage {
    Identity identity = 0;
    QSize size;
    bool alpha = false;
    Change change;

    QImage whole; ///< null when the picture is kept as tiles or as patches
    std::shared_ptr<const TileTable> tiles;

    /// What the patches lie on, and where. A picture that is kept as tiles remembers both, but its
    /// pixels are all in the tiles.
    Image beneath;
    QRegion patched;
    std::vector<ImagePatch> patches;

    QImage::Format format() const {
        return alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    }

    /// Brings `picture`, which has this size and format, up to date within `where`.
    void read(QImage &picture, const QRegion &where) const;
};
