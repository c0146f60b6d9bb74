// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/pixel_pool.h"
#include "platform/x11/connection.h"
#include "platform/x11/picture_formats.h"
#include "platform/x11/shared_picture.h"

#include <QRegion>
#include <QSize>

#include <memory>
#include <optional>
#include <vector>

namespace x11 {

/// The desktop's picture, grab after grab, without a copy where that can be had.
///
/// A few pictures in shared memory take turns: one is drawn and handed out as it is, and is drawn
/// on again only when nobody holds it any more. Each knows what changed on the desktop since its
/// turn, so that it costs no more than that to bring it up to date. When all are held (a recording
/// keeps every grab), or where pixels are fetched, a reserve is drawn that is never handed out, and
/// a copy of it is.
class PictureRing {
public:
    /// Pictures that take turns: one being drawn, one shown, one on its way between them.
    static constexpr std::size_t mostShared = 3;

    PictureRing(Connection &connection, const PictureFormats &formats, TransferMethod bestMethod);

    /// A picture to be drawn on, and where it is out of date.
    struct Turn {
        std::unique_ptr<SharedPicture> picture;
        QRegion stale;
    };

    /// Gives up pictures of another size; new ones are stale everywhere.
    void resize(QSize size);
    /// Whether the picture that was handed out last is out of date within `part`; true without one.
    bool isStale(const QRect &part) const { return !latest_ || isStale(*latest_, part); }
    static bool isStale(const Turn &turn, const QRect &part) {
        return !turn.stale.intersected(part).isEmpty();
    }
    /// The one that was handed out last turns out to be like this one within `where`.
    void latestIsAs(const Turn &turn, const QRegion &where);
    /// The desktop changed there.
    void invalidate(const QRegion &changed);
    /// Forgets what all pictures show.
    void clear();

    /// The picture whose turn it is, valid until the next call of any other function here; null
    /// when the server has no memory for one.
    Turn *next();
    /// A handle on what the picture shows within `part`; none when memory has run out. `change` is
    /// how it came out of what was handed out before.
    std::optional<Image> handOut(Turn &turn, const QRect &part, Image::Change change);

    /// The picture that was handed out last, as it is since; null when it is gone.
    Turn *latest() { return latest_; }

    /// How pixels come over; none before the first picture.
    std::optional<TransferMethod> method() const { return method_; }

private:
    Turn make(TransferMethod best);

    Connection &connection_;
    const PictureFormats &formats_;
    TransferMethod bestMethod_;
    std::optional<TransferMethod> method_;
    QSize size_;
    std::vector<Turn> shared_;
    Turn reserve_;
    Turn *latest_ = nullptr;
    std::shared_ptr<PixelPool> pool_ = PixelPool::create();
};

} // namespace x11
