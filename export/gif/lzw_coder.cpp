// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/gif/lzw_coder.h"

#include <algorithm>

namespace gif {

void LzwCoder::begin(int codeSize, CodeWriter &writer) {
    counts_ = {};
    table_.reset(codeSize);
    writer.put(unsigned(table_.clearCode()), table_.width());
}

/// Adds the phrase that a decoder makes of the one that was sent before and the first index of
/// `code`, which may be that very phrase.
void LzwCoder::learn(unsigned before, unsigned code) {
    if (table_.next() == LzwTable::mostCodes)
        return;
    const bool itself = code == unsigned(table_.next());
    table_.add(before, table_.node(itself ? before : code).first);
    counts_.full += table_.next() == LzwTable::mostCodes;
}

void LzwCoder::send(unsigned code, CodeWriter &writer) {
    counts_.widest = std::max(counts_.widest, table_.width());
    writer.put(code, table_.width());
    table_.sent();
}

void LzwCoder::clear(int codeSize, CodeWriter &writer) {
    writer.put(unsigned(table_.clearCode()), table_.width());
    table_.reset(codeSize);
    ++counts_.clears;
}

} // namespace gif
