// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/text_number.h"

#include <QByteArray>

#include <charconv>
#include <limits>
#include <system_error>

namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

/// The start of `text` up to the first character outside ASCII, without leading blanks and without
/// a plus sign; `std::from_chars` then reads exactly what may be read.
QByteArray numberStart(QStringView text) {
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    bool signedStart = false;
    if (at < text.size() && text[at] == u'+') {
        ++at;
        signedStart = true;
    }
    QByteArray result;
    for (; at < text.size() && text[at].unicode() < 0x80; ++at)
        result += static_cast<char>(text[at].unicode());
    // "+-5" is not a number.
    if (signedStart && result.startsWith('-'))
        result.clear();
    return result;
}

} // namespace

std::int64_t integerValue(QStringView text) {
    const QByteArray start = numberStart(text);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(start.begin(), start.end(), value);
    if (error == std::errc::result_out_of_range)
        return start.startsWith('-') ? std::numeric_limits<std::int64_t>::min()
                                     : std::numeric_limits<std::int64_t>::max();
    return value;
}

float floatValue(QStringView text) {
    const QByteArray start = numberStart(text);
    const qsizetype first = start.startsWith('-') ? 1 : 0;
    // Words for infinity and for no number begin with a letter.
    if (first >= start.size() || !(isDigit(QLatin1Char(start[first])) || start[first] == '.'))
        return 0.0f;
    float value = 0.0f;
    const auto [end, error] =
        std::from_chars(start.begin(), start.end(), value, std::chars_format::general);
    if (error == std::errc::result_out_of_range) {
        // Too large and too small share one error; the exponent's sign tells them apart.
        const double wide = QByteArray(start.begin(), end - start.begin()).toDouble();
        if (wide > -1.0 && wide < 1.0)
            return 0.0f;
        return first ? std::numeric_limits<float>::lowest() : std::numeric_limits<float>::max();
    }
    return value;
}
