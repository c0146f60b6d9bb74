// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>
#include <QRegion>
#include <QSize>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

/// How a picture came out of an earlier one of the same size, whose identity is `since`: it differs
/// from it at most within `region` (pixels, upper left origin).
struct ImageChange {
    std::uint64_t since = 0;
    QRegion region;
};

/// A small picture that takes the place of a part of a larger one.
struct ImagePatch {
    QPoint corner; ///< Where its upper left pixel goes, in pixels from the larger one's upper left.
    QImage pixels; ///< In the format that the larger one's `toQImage` has.
};

/// An immutable picture, as a grab yields it and a recording keeps it.
///
/// A handle: copying one copies no pixels, and what is behind it may be shared with other handles
/// and read from any thread at the same time. It is not for editing or decoding; whoever needs
/// pixels asks for a QImage, or has an `ImageReader` when it reads one picture after another. One
/// pixel is one point.
class Image {
public:
    /// Names a picture for as long as the program runs; 0 is the empty image's.
    using Identity = std::uint64_t;

    using Change = ImageChange;

    /// The empty image: no pixels, size 0 by 0.
    Image() = default;

    /// Takes over the pixels of `pixels`, which may have any format; a null picture gives the empty
    /// image. The result has alpha when the format has an alpha channel. `change` is believed.
    static Image fromQImage(QImage pixels, Change change = {});

    bool isEmpty() const { return !storage_; }

    /// Width and height in pixels; 0 by 0 for the empty image.
    QSize size() const;
    int width() const { return size().width(); }
    int height() const { return size().height(); }

    /// Whether some pixel may be other than opaque. Images without alpha are never transparent.
    bool hasAlpha() const;

    Identity identity() const;

    /// Whether both handles stand for the same picture, as one tick without a change after another
    /// yields it. Equal pixels in different pictures do not make them the same.
    bool sameAs(const Image &other) const { return identity() == other.identity(); }

    /// Where this picture may differ from `earlier`, as far as that is known without looking at
    /// pixels; none when it isn't. Nowhere for the same picture.
    std::optional<QRegion> changesSince(const Image &earlier) const;

    /// The exact pixels, in Format_RGB32 without alpha and Format_ARGB32_Premultiplied with it; a
    /// null picture for the empty image, and when memory has run out. The picture may share memory
    /// with this image and keeps it alive; writing to it detaches, as always with QImage.
    QImage toQImage() const;

    /// A new picture that differs from this one only by these patches, which lie within it. It
    /// shares all other pixels with this one, and costs no more than the patches until somebody
    /// asks for all of them. Changes are those of this one and the places of the patches.
    Image withPatches(std::vector<ImagePatch> patches) const;

    /// The part inside `part` (pixels, upper left origin, within the image and not empty), sharing
    /// pixels with this image where that can be had.
    Image cut(const QRect &part, Change change = {}) const;

private:
    friend class ImageReader;
    friend class TileStore;
    struct Storage;
    explicit Image(std::shared_ptr<const Storage> storage) : storage_(std::move(storage)) {}

    std::shared_ptr<const Storage> storage_;
};
