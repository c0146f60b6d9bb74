// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace line_breaks {

/// The text for a label that breaks its lines, so that these end where a reader pauses. Japanese
/// and Chinese have no blanks, and the toolkit breaks them between any two characters. In Japanese
/// a line then begins with kanji, katakana or a bracket that follows hiragana or a mark, where a
/// phrase usually begins; in Chinese no line is a single character, and no name in quotation marks
/// is parted. Done with invisible characters (U+2060, and no-break spaces for blanks): not for
/// texts that are copied. Other languages come back as they are.
QString atPhrases(const QString &text);

} // namespace line_breaks
