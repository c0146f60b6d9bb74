// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/colour.h"
#include "export/gif/lzw_table.h"
#include "export/gif/prepared_picture.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace gif {

/// How far each colour of a picture may be from each entry of its table. The bound holds in
/// CIEDE2000 and is worked out when it is first asked for, as few pairs ever are.
class Tolerance {
public:
    /// Of `tolerance` flat colours may use half. `picture` and `table` outlive this.
    Tolerance(const PreparedPicture &picture, std::span<const Rgb> table,
              std::span<const std::uint8_t> nearest, float tolerance);

    /// Beyond the error of the nearest entry, in CIEDE2000.
    float limit(std::uint32_t colour) const {
        return picture_.colours[colour].flat ? tolerance_ / 2 : tolerance_;
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
    bool allowsShown(std::uint32_t colour, Rgb shown) const {
        return colourDifference(picture_.colours[colour].rgb, shown) <= limit(colour);
    }

private:
    enum Known { unknown, yes, no };

    bool judge(std::uint32_t colour, std::uint8_t entry);

    const PreparedPicture &picture_;
    std::span<const Rgb> table_;
    std::span<const std::uint8_t> nearest_;
    float tolerance_;
    std::vector<std::uint8_t> known_; ///< two bits for each pair
    std::vector<float> smallest_;     ///< error of the nearest entry; negative when unknown
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

    /// A pixel of the box that is coded.
    struct Pixel {
        std::uint32_t colour = PreparedPicture::kept;
        /// Its preferred index and the other one, as in PairChoices.
        std::uint8_t first = 0;
        std::uint8_t second = 0;
    };

    struct Colours {
        std::span<const PreparedPicture::Colour> wanted; ///< the picture's
        std::span<const Perceived> entries;              ///< the table's
        int transparent = -1;
    };

    NearChoices(std::span<const Pixel> pixels, const Colours &colours, Tolerance &tolerance)
        : pixels_(pixels), colours_(colours), tolerance_(tolerance) {}

    std::size_t size() const { return pixels_.size(); }

    template <typename Function> void starts(std::size_t pos, Function f) const {
        const Pixel &pixel = pixels_[pos];
        if (pixel.second != pixel.first)
            f(pixel.second, begun(pixel, pixel.second));
        f(pixel.first, begun(pixel, pixel.first));
    }

    template <typename Function>
    void continuations(std::size_t pos, const State &state, const LzwTable &table, unsigned code,
                       Function f) const {
        const Pixel &pixel = pixels_[pos];
        State next;
        if (pixel.colour != PreparedPicture::kept) {
            for (auto child = table.node(code).firstChild; child != LzwTable::none;
                 child = table.node(child).nextSibling) {
                if (allows(pos, state, table.node(child).last, next))
                    f(child, next);
            }
            return;
        }
        for (const std::uint8_t index : {pixel.second, pixel.first}) {
            const auto child = table.child(code, index);
            if (child != LzwTable::none && allows(pos, state, index, next))
                f(child, next);
            if (pixel.second == pixel.first)
                break;
        }
    }

    bool allows(std::size_t pos, const State &state, std::uint8_t index, State &next) const {
        const Pixel &pixel = pixels_[pos];
        if (pixel.colour == PreparedPicture::kept) {
            next = {{}, state.error};
            return index == pixel.first || index == pixel.second;
        }
        if (int(index) == colours_.transparent) {
            next = {{}, state.error};
            return pixel.second == index || pixel.first == index;
        }
        const Perceived &wanted = colours_.wanted[pixel.colour].place;
        const Perceived &entry = colours_.entries[index];
        const Perceived left{wanted.lightness + carry * state.carried.lightness - entry.lightness,
                             wanted.a + carry * state.carried.a - entry.a,
                             wanted.b + carry * state.carried.b - entry.b};
        const float squared = squaredDistance(left, {});
        next = {left, state.error + squared};
        if (index == pixel.first)
            return true;
        const float most = tolerance_.limit(pixel.colour) + colours_.wanted[pixel.colour].distance;
        return squared <= most * most && tolerance_.allows(pixel.colour, index);
    }

private:
    static constexpr float carry = 0.75f;

    State begun(const Pixel &pixel, std::uint8_t index) const {
        if (pixel.colour == PreparedPicture::kept || int(index) == colours_.transparent)
            return {};
        const Perceived &wanted = colours_.wanted[pixel.colour].place;
        const Perceived &entry = colours_.entries[index];
        const Perceived left{wanted.lightness - entry.lightness, wanted.a - entry.a,
                             wanted.b - entry.b};
        return {left, squaredDistance(left, {})};
    }

    std::span<const Pixel> pixels_;
    Colours colours_;
    Tolerance &tolerance_;
};

} // namespace gif
