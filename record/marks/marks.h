// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/pointer_watch.h"
#include "record/marks/click_marks.h"
#include "record/marks/key_marks.h"
#include "record/marks/pointer_mark.h"

#include <cstdint>
#include <optional>
#include <vector>

/// What a frame shows of the hands at work, at one moment.
struct MarksShown {
    std::optional<Pointer> pointer;
    /// Where it is, whether it is shown or not; needed for clicks only. Pixels of the desktop.
    std::optional<QPoint> hand;
    std::vector<Click> clicks;
    std::optional<Plate> keys;
    MarkTime now;
};

/// Draws the hands' marks over frames, as patches: a frame shares all other pixels with the picture
/// of the windows, which is never drawn on. As long as neither the picture nor the marks change the
/// result stays the same picture (`Image::sameAs`); else it differs only where marks were and are.
class Marks {
public:
    /// `frame`, which lies at `place`, with the marks over it; `frame` itself where none of them
    /// meets it.
    Image over(const Image &frame, const FramePlace &place, const MarksShown &shown);

private:
    struct Drawn {
        Image::Identity frame = 0;
        FramePlace place;
        QPoint pointer;
        std::int64_t shape = 0; // a QImage's cacheKey; 0: no pointer
        std::vector<Disc> discs;
        std::optional<Plate> keys;

        bool operator==(const Drawn &) const = default;
    };

    Drawn drawn_;
    Image result_;
};
