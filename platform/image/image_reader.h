// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"

#include <QImage>
#include <QRegion>

/// Reads the pixels of one image after another, each at the cost of what differs from the one
/// before. For one thread.
class ImageReader {
public:
    /// The exact pixels as of `Image::toQImage`, valid until the next call. Null for the empty
    /// image and when memory has run out.
    const QImage &read(const Image &image);

    /// Where the last picture may differ from the one that was read before it: everywhere for the
    /// first one and for one of another size.
    const QRegion &changed() const { return changed_; }

private:
    Image read_;
    QImage pixels_;
    QRegion changed_;
};
