// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

/// The arithmetic of the trim editor: where the handles are, which frames are between them, what a
/// press goes to, where the playhead is drawn. Percentages are of the recording, in single
/// precision; x and widths are points from the strip's left end. No drawing and no state.
namespace range_rules {

/// The two handles' percentages, `menor` (lower) and `maior` (upper).
struct Handles {
    float menor = 0.0f;
    float maior = 100.0f;
};

/// Which of the two.
enum class Handle { Menor, Maior };

/// A horizontal stretch: x of its left end, and its width.
struct Stretch {
    double x = 0.0;
    double width = 0.0;
};

/// Width of a handle, in points: enough to be gripped.
inline constexpr double handleWidth = 12.0;
/// A press this far beside a handle still grips it, in points.
inline constexpr double handleReach = 12.0;
/// Width of the playhead's line, in points.
inline constexpr double playheadWidth = 2.0;

/// The lower handle is right of its percentage, the upper one left of it.
Stretch lowerHandle(float percent, double stripWidth);
Stretch upperHandle(float percent, double stripWidth);

/// The band between the handles; its width is negative where they overlap.
Stretch bandBetween(Handles handles, double stripWidth);

/// The handle that a press at x goes to: the nearer one, none beyond `handleReach`. Where both
/// stand at one place, which only one of them can leave in its own direction, it is that one.
std::optional<Handle> handleNear(Handles handles, double x, double stripWidth);

/// One step of a drag: `handle` follows the pointer at x, in a preview of `previewWidth`, to the
/// end where the pointer is beyond it. None without a width. When the lower one passes the upper
/// one the two values are swapped.
std::optional<Handles> dragged(Handles handles, Handle handle, double x, double previewWidth);

/// Which of the two handles is being dragged after `handle` was moved to `percent`: the other one
/// once they have changed places.
Handle inHand(Handles moved, Handle handle, float percent);

/// The percentage at x in a preview of `previewWidth`, 0 to 100.
float percentAt(double x, double previewWidth);

/// Sets one handle's percentage, and swaps the two when they are out of order.
Handles with(Handles handles, Handle handle, float percent);

/// The frame number that a percentage maps to in a recording of `frames` frames: 0 to `frames`.
std::uint64_t frameAt(float percent, std::uint64_t frames);

/// A percentage that maps to the frame number `frame` (0 to `frames`) and stays clear of its
/// neighbours: halfway between two frames, since frame numbers are ceilings of rounded numbers.
float percentFor(std::uint64_t frame, std::uint64_t frames);

/// Where frames from `first` to `last`, both included, are in a recording of `frames` frames; at
/// least `thinnest` points wide, since a single one may be left out of thousands.
inline constexpr double thinnest = 2.0;
Stretch placeOfFrames(std::uint64_t first, std::uint64_t last, std::uint64_t frames,
                      double stripWidth);

/// The frame at x, 0 to the last one; 0 in a recording without frames.
std::uint64_t frameAtX(double x, std::uint64_t frames, double stripWidth);

/// The playhead at the frame `current` of `frames`: where that frame begins. At the left end in a
/// recording without frames.
Stretch playhead(std::uint64_t current, std::uint64_t frames, double stripWidth);

/// The frame that is shown for the number `frame`: the last one of the recording where there is no
/// such frame. None in a recording without frames.
std::optional<std::uint64_t> existingFrame(std::uint64_t frame, std::uint64_t frames);

} // namespace range_rules
