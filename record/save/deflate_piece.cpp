// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/save/deflate_piece.h"

#include <libdeflate.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <stdexcept>

namespace {

constexpr int fastestLevel = 1;

// The numbers of RFC 1951, section 3.2.
constexpr unsigned longestCodeword = 15;
constexpr std::size_t literals = 288;
constexpr std::size_t distances = 32;
constexpr std::size_t lengthCodes = 19;
constexpr std::size_t endOfBlock = 256;
/// Several symbols are passed over at a time if these bits hold them.
constexpr unsigned bitsOfStep = 11;

enum BlockType : unsigned { Stored = 0, Fixed = 1, Dynamic = 2 };

/// The bits of a stream, the lowest of each byte first. Beyond the end there are zeros.
class Bits {
public:
    explicit Bits(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    /// At least the next 57 bits.
    std::uint64_t peek() const {
        std::uint64_t word = 0;
        const std::size_t byte = position_ / 8;
        if (byte + sizeof word <= bytes_.size())
            std::memcpy(&word, &bytes_[byte], sizeof word);
        else if (byte < bytes_.size())
            std::memcpy(&word, &bytes_[byte], bytes_.size() - byte);
        return word >> (position_ % 8);
    }
    void skip(std::size_t count) { position_ += count; }
    unsigned take(unsigned count) {
        const std::uint64_t bits = peek() & ((std::uint64_t{1} << count) - 1);
        skip(count);
        return static_cast<unsigned>(bits);
    }
    void toWholeByte() { position_ = (position_ + 7) / 8 * 8; }

    std::size_t position() const { return position_; }
    bool beyondEnd() const { return position_ > bytes_.size() * 8; }

private:
    std::span<const std::uint8_t> bytes_;
    std::size_t position_ = 0;
};

/// What a codeword leads to: in the lowest five bits how many bits it takes, those that follow it
/// included; above them what it means.
using Meaning = std::uint16_t;
constexpr unsigned bitsOfMeaning = 5;
constexpr Meaning meaning(unsigned what, unsigned bits) {
    return static_cast<Meaning>(what << bitsOfMeaning | bits);
}
constexpr unsigned bitsOf(Meaning entry) { return entry & ((1u << bitsOfMeaning) - 1); }
constexpr unsigned whatOf(Meaning entry) { return entry >> bitsOfMeaning; }

enum Symbol : unsigned { Literal = 0, Length = 1, End = 2, NoCode = 3 };
constexpr Meaning noCode = meaning(NoCode, 0);

constexpr auto lengthCodeMeanings = [] {
    std::array<Meaning, lengthCodes> all{};
    for (unsigned code = 0; code < lengthCodes; ++code)
        all[code] = meaning(code, 0);
    return all;
}();

constexpr auto literalMeanings = [] {
    std::array<Meaning, literals> all{};
    all[endOfBlock] = meaning(End, 0);
    for (unsigned code = 257; code < literals; ++code) {
        const unsigned extra = code < 265 || code == 285 ? 0 : (code - 261) / 4;
        all[code] = code > 285 ? noCode : meaning(Length, extra);
    }
    return all;
}();

constexpr auto distanceMeanings = [] {
    std::array<Meaning, distances> all{};
    for (unsigned code = 0; code < distances; ++code)
        all[code] = code > 29 ? noCode : meaning(Length, code < 4 ? 0 : code / 2 - 1);
    return all;
}();

/// A code, as a table with an entry for all that the next bits can be.
class Code {
public:
    /// `lengths` are those of the codewords, 0 for what has none.
    void build(std::span<const std::uint8_t> lengths, std::span<const Meaning> meanings) {
        std::array<unsigned, longestCodeword + 1> count{};
        for (const std::uint8_t length : lengths)
            ++count[length];
        unsigned width = longestCodeword;
        while (width > 1 && count[width] == 0)
            --width;
        mask_ = (1u << width) - 1;
        std::fill_n(table_.begin(), mask_ + 1, noCode);
        std::array<unsigned, longestCodeword + 2> next{};
        count[0] = 0;
        for (unsigned length = 1; length <= longestCodeword; ++length)
            next[length + 1] = (next[length] + count[length]) << 1;
        for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
            if (const unsigned length = lengths[symbol])
                enter(next[length]++, length, static_cast<Meaning>(meanings[symbol] + length));
    }

    Meaning operator[](std::uint64_t bits) const { return table_[bits & mask_]; }

private:
    /// Codewords stand in the stream with their highest bit first.
    void enter(unsigned codeword, unsigned length, Meaning entry) {
        unsigned reversed = 0;
        for (unsigned bit = 0; bit < length; ++bit)
            reversed |= (codeword >> bit & 1) << (length - 1 - bit);
        for (unsigned at = reversed; at <= mask_; at += 1u << length)
            table_[at] = entry;
    }

    std::array<Meaning, 1 << longestCodeword> table_;
    unsigned mask_ = 0;
};

} // namespace

struct DeflatePieces::Codes {
    Code lengthCode;
    Code literal;
    Code distance;
    std::array<Meaning, 1 << bitsOfStep> steps;

    struct LastBlock {
        std::size_t begin; // in bits
        std::size_t end;
    };

    void buildFixed() {
        std::array<std::uint8_t, literals + distances> lengths{};
        std::fill_n(lengths.begin(), 144, std::uint8_t{8});
        std::fill_n(lengths.begin() + 144, 112, std::uint8_t{9});
        std::fill_n(lengths.begin() + 256, 24, std::uint8_t{7});
        std::fill_n(lengths.begin() + 280, 8, std::uint8_t{8});
        std::fill_n(lengths.begin() + literals, distances, std::uint8_t{5});
        build(lengths, literals);
    }

    void build(std::span<const std::uint8_t> lengths, std::size_t literalCount) {
        literal.build(lengths.first(literalCount), literalMeanings);
        distance.build(lengths.subspan(literalCount), distanceMeanings);
        for (unsigned bits = 0; bits < steps.size(); ++bits)
            steps[bits] = stepAt(bits);
    }

    /// As many literals as there are within `bits`, and the length behind them.
    Meaning stepAt(unsigned bits) const {
        unsigned taken = 0;
        while (true) {
            const Meaning entry = literal[bits >> taken];
            const bool within = taken + bitsOf(entry) <= bitsOfStep;
            if (!within || whatOf(entry) == End || whatOf(entry) == NoCode)
                return taken > 0 ? meaning(Literal, taken) : noCode;
            taken += bitsOf(entry);
            if (whatOf(entry) == Length)
                return meaning(Length, taken);
        }
    }

    bool readCodes(Bits &bits) {
        const std::size_t literalCount = 257 + bits.take(5);
        const std::size_t all = literalCount + 1 + bits.take(5);
        const unsigned given = 4 + bits.take(4);
        static constexpr std::uint8_t order[lengthCodes] = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                            11, 4,  12, 3, 13, 2, 14, 1, 15};
        std::array<std::uint8_t, lengthCodes> lengthsOfLengths{};
        for (unsigned code = 0; code < given; ++code)
            lengthsOfLengths[order[code]] = static_cast<std::uint8_t>(bits.take(3));
        lengthCode.build(lengthsOfLengths, lengthCodeMeanings);
        std::array<std::uint8_t, literals + distances> lengths{};
        for (std::size_t at = 0; at < all;) {
            const Meaning entry = lengthCode[bits.peek()];
            bits.skip(bitsOf(entry));
            const unsigned code = whatOf(entry);
            if (bitsOf(entry) == 0 || bits.beyondEnd())
                return false;
            if (code < 16) {
                lengths[at++] = static_cast<std::uint8_t>(code);
                continue;
            }
            const unsigned repeats = code == 16   ? 3 + bits.take(2)
                                     : code == 17 ? 3 + bits.take(3)
                                                  : 11 + bits.take(7);
            if (at + repeats > all || (code == 16 && at == 0))
                return false;
            std::fill_n(&lengths[at], repeats, code == 16 ? lengths[at - 1] : std::uint8_t{0});
            at += repeats;
        }
        build(std::span(lengths).first(all), literalCount);
        return true;
    }

    /// From behind the header of a block with codes to its end.
    bool skipSymbols(Bits &bits) const {
        while (!bits.beyondEnd()) {
            // What is peeked at holds a step, or a length, and the distance.
            const std::uint64_t next = bits.peek();
            const Meaning step = steps[next % steps.size()];
            if (step != noCode) [[likely]] {
                // No jump between literals and lengths: it would be foreseen wrongly all the time.
                const unsigned back = bitsOf(distance[next >> bitsOf(step)]);
                bits.skip(bitsOf(step) + back * (whatOf(step) == Length));
                continue;
            }
            const Meaning entry = literal[next];
            bits.skip(bitsOf(entry));
            if (whatOf(entry) == End)
                return true;
            if (whatOf(entry) == Literal)
                continue;
            const Meaning back = distance[next >> bitsOf(entry)];
            if (whatOf(entry) == NoCode || whatOf(back) == NoCode)
                return false;
            bits.skip(bitsOf(back));
        }
        return false;
    }

    bool skipBlock(Bits &bits, unsigned type) {
        if (type == Stored) {
            bits.toWholeByte();
            const std::size_t length = bits.take(16);
            bits.skip(16 + length * 8);
            return true;
        }
        if (type == Fixed)
            buildFixed();
        else if (type != Dynamic || !readCodes(bits))
            return false;
        return skipSymbols(bits);
    }

    std::optional<LastBlock> lastBlock(std::span<const std::uint8_t> stream) {
        Bits bits(stream);
        while (!bits.beyondEnd()) {
            const std::size_t begin = bits.position();
            const bool last = bits.take(1) != 0;
            if (!skipBlock(bits, bits.take(2)) || bits.beyondEnd())
                return std::nullopt;
            if (last)
                return LastBlock{begin, bits.position()};
        }
        return std::nullopt;
    }
};

DeflatePieces::DeflatePieces()
    : compressor_(libdeflate_alloc_compressor(fastestLevel)), codes_(std::make_unique<Codes>()) {
    if (!compressor_)
        throw std::bad_alloc();
}

DeflatePieces::~DeflatePieces() { libdeflate_free_compressor(compressor_); }

void DeflatePieces::append(std::span<const std::uint8_t> data, std::vector<std::uint8_t> &to) {
    const std::size_t begin = to.size();
    to.resize(begin + libdeflate_deflate_compress_bound(compressor_, data.size()));
    to.resize(begin + libdeflate_deflate_compress(compressor_, data.data(), data.size(), &to[begin],
                                                  to.size() - begin));
    const std::span<std::uint8_t> stream = std::span(to).subspan(begin);
    const auto last = codes_->lastBlock(stream);
    if (!last)
        throw std::logic_error("what the compressor wrote cannot be read");
    stream[last->begin / 8] &= static_cast<std::uint8_t>(~(1u << last->begin % 8));
    // The header of a stored block is three zeros and those up to the whole byte; what pads the
    // last byte is zero already.
    to.resize(begin + (last->end + 3 + 7) / 8, 0);
    static constexpr std::uint8_t emptyBlock[] = {0x00, 0x00, 0xff, 0xff};
    to.insert(to.end(), std::begin(emptyBlock), std::end(emptyBlock));
}
