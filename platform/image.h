// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

#include <memory>

/// An immutable picture, as a grab yields it and a recording keeps it.
///
/// A handle: copying one copies no pixels, and what is behind it may be shared with other handles
/// and read from any thread at the same time. It is not for editing or decoding; whoever needs
/// pixels asks for a QImage. One pixel is one point.
class Image {
public:
    /// The empty image: no pixels, size 0 by 0.
    Image() = default;

    /// Takes over the pixels of `pixels`, which may have any format; a null picture gives the empty
    /// image. The result has alpha when the format has an alpha channel.
    static Image fromQImage(QImage pixels);

    bool isEmpty() const { return !storage_; }

    /// Width and height in pixels; 0 by 0 for the empty image.
    QSize size() const;
    int width() const { return size().width(); }
    int height() const { return size().height(); }

    /// Whether some pixel may be other than opaque. Images without alpha are never transparent.
    bool hasAlpha() const;

    /// Whether both handles stand for the same picture, as one tick without a change after another
    /// yields it. Equal pixels in different pictures do not make them the same.
    bool sameAs(const Image &other) const { return storage_ == other.storage_; }

    /// The exact pixels, in Format_RGB32 without alpha and Format_ARGB32_Premultiplied with it; a
    /// null picture for the empty image. The picture may share memory with this image and keeps it
    /// alive; writing to it detaches, as always with QImage.
    QImage toQImage() const;

private:
    struct Storage;
    std::shared_ptr<const Storage> storage_;
};
