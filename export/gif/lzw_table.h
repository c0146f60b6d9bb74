// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace gif {

/// The phrases that the coder and every decoder agree upon since the last clear code, as a tree: a
/// phrase is a node, whose number is its code, and a phrase longer by one index is its child.
/// Memory of 2 MB, made once and used for one picture after another.
///
/// A decoder learns a phrase one code later than the coder (GIF89a, appendix F), so the width of
/// the next code follows what the decoder has: `decoderNext`.
class LzwTable {
public:
    static constexpr int mostCodes = 4096;
    static constexpr int widest = 12;
    static constexpr std::uint16_t none = 0;

    /// One phrase; 0 ends the lists, as code 0 is nobody's child.
    struct Node {
        std::uint16_t parent = none;
        std::uint16_t firstChild = none;
        std::uint16_t nextSibling = none;
        std::uint16_t length = 1;
        std::uint8_t first = 0; ///< the index that the phrase begins with
        std::uint8_t last = 0;  ///< and the one that it ends with
    };

    LzwTable() : nodes_(mostCodes), children_(new std::uint16_t[std::size_t{mostCodes} * 256]()) {}

    /// Only the single indices below 2 to the power of `codeSize` (2 to 8) are left.
    void reset(int codeSize) {
        for (int code = firstFree_; code < next_; ++code) {
            const Node &node = nodes_[std::size_t(code)];
            if (child(node.parent, node.last) == code)
                children_[node.parent * 256u + node.last] = none;
        }
        codeSize_ = codeSize;
        firstFree_ = (1 << codeSize) + 2;
        next_ = firstFree_;
        sent_ = 0;
        width_ = codeSize + 1;
        forgetNext();
        for (int code = 0; code < (1 << codeSize); ++code)
            nodes_[std::size_t(code)] = {
                none, none, none, 1, std::uint8_t(code), std::uint8_t(code)};
    }

    int clearCode() const { return 1 << codeSize_; }
    int endCode() const { return (1 << codeSize_) + 1; }

    const Node &node(unsigned code) const { return nodes_[code]; }

    /// The phrase `code` and one more index; `none` when nobody has said so yet.
    std::uint16_t child(unsigned code, std::uint8_t index) const {
        return children_[code * 256u + index];
    }

    /// The number that the next phrase will have; `mostCodes` when there is no room for it.
    int next() const { return next_; }

    /// Adds the phrase `code` and `index`, unless the table is full. A phrase that exists takes a
    /// number all the same, since the decoder does not look.
    void add(unsigned code, std::uint8_t index) {
        if (next_ == mostCodes)
            return;
        Node &parent = nodes_[code];
        const auto added = std::uint16_t(next_++);
        forgetNext();
        Node &node = nodes_[added];
        node = {std::uint16_t(code), none, none, std::uint16_t(parent.length + 1),
                parent.first,        index};
        std::uint16_t &slot = children_[code * 256u + index];
        if (slot != none)
            return;
        slot = added;
        node.nextSibling = parent.firstChild;
        parent.firstChild = added;
    }

    /// Writes the indices that the phrase `code` represents.
    void spell(unsigned code, std::uint8_t *indices) const {
        for (std::size_t i = nodes_[code].length; i-- > 0; code = nodes_[code].parent)
            indices[i] = nodes_[code].last;
    }

    /// Bits of the code that is sent next.
    int width() const { return width_; }

    /// To be called for each code that was sent, after the clear code.
    void sent() {
        ++sent_;
        if (decoderNext() == (1 << width_) && width_ < widest)
            ++width_;
    }

    /// The number of the phrase that a decoder adds with the next code, at most `mostCodes`.
    int decoderNext() const {
        const int learnt = sent_ > 0 ? sent_ - 1 : 0;
        return learnt < mostCodes - firstFree_ ? firstFree_ + learnt : mostCodes;
    }

private:
    /// The next phrase is looked at before it is added, and has no children then.
    void forgetNext() {
        if (next_ < mostCodes)
            nodes_[std::size_t(next_)].firstChild = none;
    }

    std::vector<Node> nodes_;
    std::unique_ptr<std::uint16_t[]> children_;
    int codeSize_ = 2;
    int firstFree_ = 6;
    int next_ = 6;
    int sent_ = 0;
    int width_ = 3;
};

} // namespace gif
