// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/progress_parser.h"

#include "platform/text_number.h"

#include <QStringDecoder>

namespace {

constexpr QStringView mark = u"time=";
constexpr qsizetype stampLength = 8; // HH:MM:SS

constexpr QStringView addedMark = u" at time ";
constexpr double millisecondsPerSecond = 1000.0;

/// What follows a stamp's whole seconds, ".20", in seconds; 0 where it is something else.
double hundredthsAt(QStringView text) {
    constexpr double perSecond = 100.0;
    const auto isDigit = [text](qsizetype at) { return text[at] >= u'0' && text[at] <= u'9'; };
    if (text.size() < 3 || text[0] != u'.' || !isDigit(1) || !isDigit(2))
        return 0.0;
    return static_cast<double>(integerValue(text.mid(1, 2))) / perSecond;
}

} // namespace

std::optional<QString> strictUtf8(QByteArrayView bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

std::uint64_t secondsFromStamp(QStringView stamp) {
    const auto field = [stamp](qsizetype at) {
        return static_cast<std::uint64_t>(integerValue(stamp.mid(at, 2)));
    };
    return field(0) * 3600 + field(3) * 60 + field(6);
}

std::optional<double> secondsInChunk(QByteArrayView chunk) {
    const QString text = strictUtf8(chunk).value_or(QString());
    qsizetype candidate = text.indexOf(mark);
    if (candidate < 0)
        return std::nullopt;
    qsizetype searchStart = candidate + mark.size() + stampLength;
    if (searchStart > text.size())
        return std::nullopt;
    for (;;) {
        const qsizetype next = text.indexOf(mark, searchStart, Qt::CaseInsensitive);
        if (next < 0 || next + mark.size() + stampLength > text.size())
            break;
        candidate = next;
        searchStart = next + mark.size() + stampLength;
    }
    const QStringView stamp = QStringView(text).mid(candidate + mark.size());
    return static_cast<double>(secondsFromStamp(stamp)) + hundredthsAt(stamp.mid(stampLength));
}

std::optional<double> secondsOfAddedFrame(QByteArrayView chunk) {
    const QString text = strictUtf8(chunk).value_or(QString());
    // A line that is cut off may hold a part of its number.
    const qsizetype end = text.lastIndexOf(u'\n');
    const qsizetype at = end < 0 ? -1 : text.lastIndexOf(addedMark, end);
    if (at < 0)
        return std::nullopt;
    const std::int64_t time = integerValue(QStringView(text).mid(at + addedMark.size()));
    return static_cast<double>(time) / millisecondsPerSecond;
}

double progressPercentage(double seconds, double duration) {
    const float percentage = static_cast<float>(seconds) * 100.0f / static_cast<float>(duration);
    return static_cast<double>(percentage);
}
