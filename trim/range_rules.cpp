// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/range_rules.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace range_rules {

namespace {

// Handles are placed in double precision and then rounded to single precision, so that every part
// of the strip meets the next one at the same number.
float placeOf(double percent, double stripWidth) {
    return static_cast<float>(percent * stripWidth / 100.0);
}

constexpr float handleWidthSingle = static_cast<float>(handleWidth);

/// Handles that are less than this apart stand at one place, in points.
constexpr double together = 1.0;

/// How far x is from the stretch, 0 within it.
double distance(Stretch stretch, double x) {
    return std::max({stretch.x - x, x - (stretch.x + stretch.width), 0.0});
}

double fromMiddle(Stretch stretch, double x) { return std::abs(stretch.x + stretch.width / 2 - x); }

} // namespace

Stretch lowerHandle(float percent, double stripWidth) {
    return {placeOf(percent, stripWidth), handleWidth};
}

Stretch upperHandle(float percent, double stripWidth) {
    return {placeOf(percent, stripWidth) - handleWidthSingle, handleWidth};
}

Stretch bandBetween(Handles handles, double stripWidth) {
    const float left = placeOf(handles.menor, stripWidth) + handleWidthSingle;
    const float right = placeOf(handles.maior, stripWidth) - handleWidthSingle;
    return {left, right - left};
}

std::optional<Handle> handleNear(Handles handles, double x, double stripWidth) {
    const Stretch lower = lowerHandle(handles.menor, stripWidth);
    const Stretch upper = upperHandle(handles.maior, stripWidth);
    const double toLower = distance(lower, x);
    const double toUpper = distance(upper, x);
    if (!(std::min(toLower, toUpper) <= handleReach))
        return {};
    const bool lowerCanMove = handles.menor > 0.0f;
    const bool upperCanMove = handles.maior < 100.0f;
    if (upper.x + upper.width - lower.x < together && lowerCanMove != upperCanMove)
        return lowerCanMove ? Handle::Menor : Handle::Maior;
    const bool isLower =
        toLower == toUpper ? fromMiddle(lower, x) <= fromMiddle(upper, x) : toLower < toUpper;
    return isLower ? Handle::Menor : Handle::Maior;
}

std::optional<Handles> dragged(Handles handles, Handle handle, double x, double previewWidth) {
    // Written so that a pointer or a width that is no number moves nothing.
    if (!(previewWidth > 0.0) || std::isnan(x))
        return {};
    return with(handles, handle, percentAt(x, previewWidth));
}

float percentAt(double x, double previewWidth) {
    return static_cast<float>(std::clamp(x, 0.0, previewWidth) * 100.0 / previewWidth);
}

Handle inHand(Handles moved, Handle handle, float percent) {
    if (moved.menor == moved.maior)
        return handle;
    return moved.maior == percent ? Handle::Maior : Handle::Menor;
}

Handles with(Handles handles, Handle handle, float percent) {
    (handle == Handle::Menor ? handles.menor : handles.maior) = percent;
    if (handles.menor > handles.maior)
        std::swap(handles.menor, handles.maior);
    return handles;
}

std::uint64_t frameAt(float percent, std::uint64_t frames) {
    const float count = static_cast<float>(frames);
    return static_cast<std::uint64_t>(std::ceil(percent * count / 100.0f));
}

float percentFor(std::uint64_t frame, std::uint64_t frames) {
    if (frame == 0 || frames == 0)
        return 0.0f;
    if (frame >= frames)
        return 100.0f;
    return static_cast<float>((static_cast<double>(frame) - 0.5) * 100.0 /
                              static_cast<double>(frames));
}

Stretch placeOfFrames(std::uint64_t first, std::uint64_t last, std::uint64_t frames,
                      double stripWidth) {
    const double each = frames > 0 ? stripWidth / static_cast<double>(frames) : 0.0;
    const double x = static_cast<double>(first) * each;
    const double end = static_cast<double>(last + 1) * each;
    return {x, std::max(end - x, thinnest)};
}

std::uint64_t frameAtX(double x, std::uint64_t frames, double stripWidth) {
    if (frames == 0 || !(stripWidth > 0.0) || !(x > 0.0))
        return 0;
    const double share = std::min(x / stripWidth, 1.0);
    return std::min(static_cast<std::uint64_t>(share * static_cast<double>(frames)), frames - 1);
}

Stretch playhead(std::uint64_t current, std::uint64_t frames, double stripWidth) {
    if (frames == 0)
        return {0.0, playheadWidth};
    return {static_cast<double>(current) * stripWidth / static_cast<double>(frames), playheadWidth};
}

std::optional<std::uint64_t> existingFrame(std::uint64_t frame, std::uint64_t frames) {
    if (frames == 0)
        return {};
    return std::min(frame, frames - 1);
}

} // namespace range_rules
