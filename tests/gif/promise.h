// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/colour.h"
#include "tests/gif/clip.h"
#include "tests/gif/slow_gif.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <string>

/// What a file promises about each frame of its clip, checked pixel by pixel.
class Promise {
public:
    Promise(const Clip &clip, const SlowGif &gif, float tolerance)
        : clip_(clip), gif_(gif), tolerance_(tolerance) {}

    /// What is broken, in words; empty when the promise is kept.
    std::string broken() {
        if (gif_.width != clip_.width() || gif_.height != clip_.height())
            return "size";
        std::int64_t begin = 0, end = 0;
        std::size_t picture = 0;
        for (std::size_t frame = 0; frame < clip_.size(); ++frame) {
            const auto drawn = [&](std::size_t i) {
                return i < gif_.pictures.size() ? &gif_.pictures[i] : nullptr;
            };
            // The picture shown as the frame begins.
            const auto *now = drawn(picture);
            while (now && begin >= end + now->delay) {
                end += now->delay;
                now = drawn(++picture);
            }
            if (!now)
                return "ends early";
            const bool fresh = end == begin;
            if (std::string fault = frameFault(frame, *now, fresh); !fault.empty())
                return "frame " + std::to_string(frame) + ": " + fault;
            begin += clip_.delay(frame);
            shown_ = now->shown;
        }
        std::int64_t all = 0;
        for (const auto &each : gif_.pictures)
            all += each.delay;
        return all == begin ? "" : "lasts " + std::to_string(all);
    }

private:
    /// Colours with at least 64 connected pixels of what changed.
    std::set<std::uint32_t> flatColours(const Clip::Pixels &pixels,
                                        const std::vector<bool> &changed) const {
        const int w = clip_.width(), h = clip_.height();
        std::vector<bool> seen(pixels.size());
        std::set<std::uint32_t> flat;
        for (std::size_t start = 0; start < pixels.size(); ++start) {
            if (!changed[start] || seen[start])
                continue;
            std::vector<std::size_t> open{start};
            seen[start] = true;
            std::size_t area = 0;
            const auto visit = [&](std::size_t i) {
                if (changed[i] && !seen[i] && pixels[i] == pixels[start]) {
                    seen[i] = true;
                    open.push_back(i);
                }
            };
            while (!open.empty()) {
                const std::size_t i = open.back();
                open.pop_back();
                ++area;
                const int x = int(i % std::size_t(w)), y = int(i / std::size_t(w));
                if (x > 0)
                    visit(i - 1);
                if (x + 1 < w)
                    visit(i + 1);
                if (y > 0)
                    visit(i - std::size_t(w));
                if (y + 1 < h)
                    visit(i + std::size_t(w));
            }
            if (area >= 64)
                flat.insert(pixels[start] & gif::rgbBits);
        }
        return flat;
    }

    /// How far the nearest entry of the picture's table is from a colour.
    static float nearestError(std::uint32_t colour, const SlowGif::Picture &picture,
                              const std::vector<gif::Perceived> &places) {
        std::uint32_t nearest = picture.table[0];
        float least = 1e9f;
        const gif::Perceived place = gif::perceived(colour);
        for (std::size_t i = 0; i < places.size(); ++i) {
            const float d = gif::squaredDistance(place, places[i]);
            if (int(i) != picture.transparent && d < least) {
                least = d;
                nearest = picture.table[i];
            }
        }
        return gif::colourDifference(colour, nearest);
    }

    std::string frameFault(std::size_t frame, const SlowGif::Picture &picture, bool fresh) {
        const Clip::Pixels &pixels = clip_.pixels(frame);
        std::vector<bool> changed(pixels.size(), true);
        std::set<std::uint32_t> colours;
        bool keeps = false;
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            if (frame > 0)
                changed[i] = ((pixels[i] ^ clip_.pixels(frame - 1)[i]) & gif::rgbBits) != 0;
            keeps |= !changed[i];
            if (changed[i])
                colours.insert(pixels[i] & gif::rgbBits);
        }
        const bool exact = tolerance_ == 0 && colours.size() <= (keeps ? 255 : 256);
        const auto flat = flatColours(pixels, changed);
        std::map<std::uint32_t, float> errors;
        std::vector<gif::Perceived> places;
        for (const std::uint32_t entry : picture.table)
            places.push_back(gif::perceived(entry));
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const std::uint32_t wanted = pixels[i] & gif::rgbBits, shown = picture.shown[i];
            if (!changed[i]) {
                if (shown != shown_[i])
                    return "flickers";
                continue;
            }
            if (wanted == shown)
                continue;
            const bool isFlat = flat.size() <= 200 && flat.contains(wanted);
            if (exact || (tolerance_ == 0 && isFlat))
                return exact ? "not exact" : "flat area not exact";
            float most = isFlat ? tolerance_ / 2 : tolerance_;
            if (!isFlat && fresh) {
                if (!errors.contains(wanted))
                    errors[wanted] = nearestError(wanted, picture, places);
                most += errors[wanted];
            }
            if (gif::colourDifference(wanted, shown) > most + 1e-3f)
                return "too far: " + std::to_string(gif::colourDifference(wanted, shown)) + " of " +
                       std::to_string(most);
        }
        return "";
    }

    const Clip &clip_;
    const SlowGif &gif_;
    float tolerance_;
    std::vector<std::uint32_t> shown_;
};
