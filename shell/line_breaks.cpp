// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/line_breaks.h"

#include <QStringView>

#include <algorithm>

namespace line_breaks {

namespace {

constexpr QChar joiner(0x2060);

bool isHiragana(QChar each) { return each.script() == QChar::Script_Hiragana; }

/// What has no blanks around it: kana, kanji, and the marks in full width.
bool isWide(QChar each) {
    return each.unicode() >= 0x3000 && each.unicode() <= 0xffef && !each.isSurrogate();
}

bool opens(QChar each) {
    return each.category() == QChar::Punctuation_Open ||
           each.category() == QChar::Punctuation_InitialQuote;
}

bool isMark(QChar each) { return each.isPunct() && !opens(each); }

/// Whether a phrase may end with `before` and another begin with `after`.
bool partsJapanese(QChar before, QChar after) {
    if (isHiragana(after) || isMark(after) || opens(before))
        return false;
    const bool ends = before.category() == QChar::Punctuation_Other; // a comma or a full stop
    return opens(after) || isHiragana(before) || ends;
}

/// Whether a number, or the name of a key, ends there: it stays with what is behind it.
bool belongsToNext(QStringView text, qsizetype end) {
    if (end < 1 || isWide(text[end - 1]))
        return false;
    const bool isLetter =
        text[end - 1].isLetter() && (end < 2 || !text[end - 2].isLetterOrNumber());
    return text[end - 1].isDigit() || isLetter;
}

/// Whether the last character of a sentence, or of a part of it, follows.
bool isBeforeLast(QStringView text, qsizetype at) {
    return at + 2 >= text.size() || isMark(text[at + 2]);
}

} // namespace

QString atPhrases(const QString &text) {
    const bool isJapanese = std::ranges::any_of(text, isHiragana);
    if (!isJapanese && std::ranges::none_of(text, isWide))
        return text;
    QString phrases;
    bool isQuoted = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar each = text[at];
        const QChar next = at + 1 < text.size() ? text[at + 1] : QChar();
        if (opens(each) || each.category() == QChar::Punctuation_Close ||
            each.category() == QChar::Punctuation_FinalQuote)
            isQuoted = opens(each) && each != QChar(0xff08); // but not by a parenthesis
        if (each == u' ' &&
            (isQuoted || isHiragana(next) || (isWide(next) && belongsToNext(text, at)))) {
            phrases += QChar::Nbsp;
            continue;
        }
        phrases += each;
        if (!isWide(each) || !isWide(next))
            continue;
        const bool mayPart = isJapanese ? partsJapanese(each, next) : !isBeforeLast(text, at);
        if (isQuoted || !mayPart)
            phrases += joiner;
    }
    return phrases;
}

} // namespace line_breaks
