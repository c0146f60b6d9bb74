// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/gif/code_writer.h"
#include "export/gif/lzw_table.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

namespace gif {

// Codes a picture's indices where many a pixel may have one of several: what is longest in the
// table is taken. What a pixel may have is a template parameter, `Choices`:
//
//   std::size_t size() const                 pixels
//   Choices::State                           what a path through the table remembers, with
//   operator<
//                                            for "comes closer to what was meant"
//   void starts(pos, f)                      f(index, state) for each index that may begin a phrase
//                                            at `pos`, the preferred one last
//   void continuations(pos, state, table, code, f)
//                                            f(child, state) for each child of `code` in the table
//                                            that may stand at `pos`, the preferred one last
//   bool allows(pos, state, index, next)     whether `index` may stand at `pos`, with its state
//
// A phrase is at most as long as the table has codes, and one search meets each of them at most
// once, whatever the choices.

/// A pixel's index, and another one that serves as well; the same where there is none.
struct IndexPair {
    std::uint8_t first = 0; ///< preferred where both lead equally far
    std::uint8_t second = 0;
};

/// Each pixel has one of two indices. The span outlives this.
class PairChoices {
public:
    struct State {
        bool operator<(const State &) const { return false; }
    };

    explicit PairChoices(std::span<const IndexPair> pixels) : pixels_(pixels) {}

    std::size_t size() const { return pixels_.size(); }

    template <typename Function> void starts(std::size_t pos, Function f) const {
        const auto [first, second] = pixels_[pos];
        if (second != first)
            f(second, State());
        f(first, State());
    }

    template <typename Function>
    void continuations(std::size_t pos, State, const LzwTable &table, unsigned code,
                       Function f) const {
        const auto [first, second] = pixels_[pos];
        if (second != first) {
            if (const auto child = table.child(code, second); child != LzwTable::none)
                f(child, State());
        }
        if (const auto child = table.child(code, first); child != LzwTable::none)
            f(child, State());
    }

    bool allows(std::size_t pos, State, std::uint8_t index, State &) const {
        return index == pixels_[pos].first || index == pixels_[pos].second;
    }

private:
    std::span<const IndexPair> pixels_;
};

/// How hard to look for short codings.
struct LzwEffort {
    /// A phrase may end up to so many pixels earlier when that makes the next one longer by more.
    int lookAhead = 0;
    /// Phrases looked at in one search.
    int mostVisits = LzwTable::mostCodes;
};

/// Codes one picture after another; for one thread. The memory of its table is kept between them.
class LzwCoder {
public:
    /// Codes indices below 2 to the power of `codeSize` (2 to 8) as a picture's image data without
    /// its first byte (which is the code size). `chosen` gets the index of each pixel. Nothing is
    /// returned when `stop` was asked for.
    template <typename Choices>
    std::vector<std::uint8_t> code(const Choices &choices, int codeSize, LzwEffort effort,
                                   std::vector<std::uint8_t> &chosen,
                                   const std::stop_token &stop = {});

    /// What happened to the table, for tests.
    struct Counts {
        int clears = 0; ///< clear codes but for the first
        int full = 0;   ///< how often the table was filled
        int widest = 0; ///< bits of the longest code
    };
    const Counts &counts() const { return counts_; }

private:
    template <typename State> struct Match {
        unsigned code = 0;
        std::size_t length = 0;
        State state = {};
    };
    template <typename State> struct Step {
        unsigned code;
        std::size_t pos;
        State state;
    };
    static constexpr unsigned noPhrase = LzwTable::mostCodes;
    static constexpr std::size_t stopEvery = 1024; ///< codes

    template <typename Choices>
    Match<typename Choices::State>
    search(const Choices &choices, std::size_t start, unsigned before,
           std::vector<Step<typename Choices::State>> &steps, int mostVisits) const;
    template <typename Choices, typename State>
    void shorten(const Choices &choices, std::size_t pos, int lookAhead, int mostVisits,
                 Match<State> &match, Match<State> &next, std::vector<Step<State>> &steps) const;
    void begin(int codeSize, CodeWriter &writer);
    void learn(unsigned before, unsigned code);
    void send(unsigned code, CodeWriter &writer);
    void clear(int codeSize, CodeWriter &writer);

    LzwTable table_;
    Counts counts_;
};

/// The longest phrase that may stand at `start`, and of equal ones the closest. `before` is the
/// phrase that was sent last: what it makes together with the coming index is in the table, too, as
/// soon as a decoder needs it.
template <typename Choices>
LzwCoder::Match<typename Choices::State>
LzwCoder::search(const Choices &choices, std::size_t start, unsigned before,
                 std::vector<Step<typename Choices::State>> &steps, int mostVisits) const {
    using State = typename Choices::State;
    Match<State> best;
    if (start >= choices.size())
        return best;
    const std::size_t end = choices.size();
    const bool mayGrow = before != noPhrase && table_.next() < LzwTable::mostCodes;
    const std::uint8_t growth = mayGrow ? table_.node(before).first : std::uint8_t(0);
    choices.starts(start, [&](std::uint8_t index, const State &state) {
        steps.push_back({index, start + 1, state});
    });
    for (int visits = 0; !steps.empty(); ++visits) {
        const Step<State> step = steps.back();
        steps.pop_back();
        const std::size_t length = step.pos - start;
        if (length > best.length || (length == best.length && step.state < best.state))
            best = {step.code, length, step.state};
        if (step.pos == end)
            continue;
        if (visits >= mostVisits)
            break;
        if (mayGrow && step.code == before && table_.child(before, growth) == LzwTable::none) {
            State next = {};
            if (choices.allows(step.pos, step.state, growth, next))
                steps.push_back({unsigned(table_.next()), step.pos + 1, next});
        }
        choices.continuations(step.pos, step.state, table_, step.code,
                              [&](std::uint16_t child, const State &state) {
                                  steps.push_back({child, step.pos + 1, state});
                              });
    }
    steps.clear();
    return best;
}

/// Whether `match` may better end a few pixels earlier, for what then comes next: both are
/// replaced.
template <typename Choices, typename State>
void LzwCoder::shorten(const Choices &choices, std::size_t pos, int lookAhead, int mostVisits,
                       Match<State> &match, Match<State> &next,
                       std::vector<Step<State>> &steps) const {
    std::size_t most = match.length + next.length;
    Match<State> shorter = match;
    for (int i = 0; i < lookAhead && shorter.length > 1; ++i) {
        shorter = {table_.node(shorter.code).parent, shorter.length - 1, {}};
        const auto other = search(choices, pos + shorter.length, shorter.code, steps, mostVisits);
        if (shorter.length + other.length > most) {
            most = shorter.length + other.length;
            match = shorter;
            next = other;
        }
    }
}

template <typename Choices>
std::vector<std::uint8_t> LzwCoder::code(const Choices &choices, int codeSize, LzwEffort effort,
                                         std::vector<std::uint8_t> &chosen,
                                         const std::stop_token &stop) {
    using State = typename Choices::State;
    CodeWriter writer;
    std::vector<Step<State>> steps;
    const auto longestAt = [&](std::size_t pos, unsigned before) {
        return search(choices, pos, before, steps, effort.mostVisits);
    };
    chosen.resize(choices.size());
    begin(codeSize, writer);
    unsigned before = noPhrase;
    Match<State> match = longestAt(0, before);
    for (std::size_t pos = 0, codes = 0; pos < choices.size(); ++codes) {
        if (codes % stopEvery == 0 && stop.stop_requested())
            return {};
        // The first index is the same for a phrase that ends earlier.
        if (before != noPhrase)
            learn(before, match.code);
        const bool full = table_.next() == LzwTable::mostCodes;
        Match<State> next;
        if (!full) {
            next = longestAt(pos + match.length, match.code);
            if (pos + match.length < choices.size())
                shorten(choices, pos, effort.lookAhead, effort.mostVisits, match, next, steps);
        }
        table_.spell(match.code, &chosen[pos]);
        send(match.code, writer);
        before = match.code;
        pos += match.length;
        if (full && pos < choices.size()) {
            clear(codeSize, writer);
            before = noPhrase;
            next = longestAt(pos, before);
        }
        match = next;
    }
    writer.put(unsigned(table_.endCode()), table_.width());
    return writer.finish();
}

} // namespace gif
