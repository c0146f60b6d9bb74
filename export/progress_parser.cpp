// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/progress_parser.h"

#include "platform/text_number.h"

#include <QStringDecoder>

namespace {

constexpr QStringView mark = u"time=";
constexpr qsizetype stampLength = 8; // HH:MM:SS

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

std::optional<std::uint64_t> secondsInChunk(QByteArrayView chunk) {
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
    return secondsFromStamp(QStringView(text).mid(candidate + mark.size(), stampLength));
}

double progressPercentage(std::uint64_t seconds, std::uint64_t duration) {
    const float percentage = static_cast<float>(seconds) * 100.0f / static_cast<float>(duration);
    return static_cast<double>(percentage);
}
