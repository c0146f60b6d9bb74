// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/colour.h"
#include "export/gif/lzw_coder.h"
#include "export/gif/prepared_picture.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace gif {

/// Remembers differences between colours: recordings use the same ones over and over.
class DifferenceCache {
public:
    /// As of `colourDifference`.
    float difference(Rgb x, Rgb y) {
        const std::uint64_t key = std::uint64_t(x) << 24 | y;
        Known &known = known_[key * 0x9E3779B97F4A7C15u >> (64 - bits)];
        if (known.key != key)
            known = {key, colourDifference(x, y)};
        return known.difference;
    }

private:
    struct Known {
        std::uint64_t key = ~std::uint64_t(0);
        float difference = 0;
    };
    static constexpr int bits = 15;

    std::vector<Known> known_ = std::vector<Known>(std::size_t(1) << bits);
};

/// How far each colour of a picture may be from each entry of its table. The bound holds in
/// CIEDE2000 and is worked out when it is first asked for, as few pairs ever are.
class Tolerance {
public:
    /// Judges colours of `picture`, which outlives this, from now on; none when there is no
    /// tolerance. Of `tolerance` flat colours may use half.
    void begin(const PreparedPicture &picture, std::span<const Rgb> table,
               std::span<const std::uint8_t> nearest, float tolerance);

    /// Beyond the error of the nearest entry, in CIEDE2000.
    float limit(std::uint32_t colour) const {
        return picture_->colours[colour].flat ? tolerance_ / 2 : tolerance_;
    }

    bool allows(std::uint32_t colour, std::uint8_t entry) {
        std::uint8_t &known = known_[std::size_t(colour) * 64 + entry / 4];
        const int shift = entry % 4 * 2;
        const int state = known >> shift & 3;
        if (state != unknown)
            return state == yes;
        const bool allowed = judge(colour, entry);
        known = std::uint8_t(known | (allowed ? yes : no) << shift);
        return allowed;
    }

    /// Whether a pixel of this colour may stay what the canvas shows.
    bool allowsShown(std::uint32_t colour, Rgb shown) {
        return differences_.difference(picture_->colours[colour].rgb, shown) <= limit(colour);
    }

private:
    enum Known { unknown, yes, no };

    bool judge(std::uint32_t colour, std::uint8_t entry);

    const PreparedPicture *picture_ = nullptr;
    std::span<const Rgb> table_;
    std::span<const std::uint8_t> nearest_;
    float tolerance_ = 0;
    std::vector<std::uint8_t> known_; ///< two bits for each pair
    std::vector<float> smallest_;     ///< error of the nearest entry; negative when unknown
    DifferenceCache differences_;
};

/// What the pixels of a box may be where a tolerance is given: those that are kept, transparent or
/// what the canvas shows; the others any entry within the tolerance of their colour plus most of
/// the error that the pixel before left, so that areas keep their colour on the whole. Each phrase
/// begins with the nearest entry, without which flat areas shift as a whole.
class NearChoices {
public:
    struct State {
        Perceived carried; ///< what is left to make up for
        float error = 0;   ///< the sum of the squares
        bool operator<(const State &other) const { return error < other.error; }
    };

    struct Colours {
        std::span<const PreparedPicture::Colour> wanted; ///< the picture's
        std::span<const Perceived> entries;              ///< the table's
        int transparent = -1;
    };

    /// `pixels` has the colour of each pixel, or `PreparedPicture::kept`; `pairs` its nearest entry
    /// or what a kept pixel is rather, and what it may be instead.
    NearChoices(std::span<const std::uint32_t> pixels, std::span<const IndexPair> pairs,
                const Colours &colours, Tolerance &tolerance)
        : pixels_(pixels), pairs_(pairs), colours_(colours), tolerance_(tolerance) {}

    std::size_t size() const { return pixels_.size(); }

    template <typename Function> void starts(std::size_t pos, Function f) const {
        const auto [first, second] = pairs_[pos];
        if (second != first)
            f(second, begun(pixels_[pos], second));
        f(first, begun(pixels_[pos], first));
    }

    template <typename Function>
    void continuations(std::size_t pos, const State &state, const LzwTable &table, unsigned code,
                       Function f) const {
        State next;
        if (pixels_[pos] != PreparedPicture::kept) {
            for (auto child = table.node(code).firstChild; child != LzwTable::none;
                 child = table.node(child).nextSibling) {
                if (allows(pos, state, table.node(child).last, next))
                    f(child, next);
            }
            return;
        }
        const auto [first, second] = pairs_[pos];
        next = {{}, state.error};
        if (const auto child = table.child(code, second);
            second != first && child != LzwTable::none)
            f(child, next);
        if (const auto child = table.child(code, first); child != LzwTable::none)
            f(child, next);
    }

    bool allows(std::size_t pos, const State &state, std::uint8_t index, State &next) const {
        const std::uint32_t colour = pixels_[pos];
        const auto [first, second] = pairs_[pos];
        if (colour == PreparedPicture::kept || int(index) == colours_.transparent) {
            next = {{}, state.error};
            return index == first || index == second;
        }
        const PreparedPicture::Colour &wanted = colours_.wanted[colour];
        const Perceived &entry = colours_.entries[index];
        const Perceived left{wanted.place.lightness + carry * state.carried.lightness -
                                 entry.lightness,
                             wanted.place.a + carry * state.carried.a - entry.a,
                             wanted.place.b + carry * state.carried.b - entry.b};
        const float squared = squaredDistance(left, {});
        next = {left, state.error + squared};
        if (index == first)
            return true;
        const float most = tolerance_.limit(colour) + wanted.distance;
        return squared <= most * most && tolerance_.allows(colour, index);
    }

private:
    static constexpr float carry = 0.75f;

    State begun(std::uint32_t colour, std::uint8_t index) const {
        if (colour == PreparedPicture::kept || int(index) == colours_.transparent)
            return {};
        const Perceived &wanted = colours_.wanted[colour].place;
        const Perceived &entry = colours_.entries[index];
        const Perceived left{wanted.lightness - entry.lightness, wanted.a - entry.a,
                             wanted.b - entry.b};
        return {left, squaredDistance(left, {})};
    }

    std::span<const std::uint32_t> pixels_;
    std::span<const IndexPair> pairs_;
    Colours colours_;
    Tolerance &tolerance_;
};

} // namespace gif
