// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/property_values.h"

#include <QStringDecoder>

#include <cstring>

namespace x11 {

std::optional<QString> classFromProperty(QByteArrayView both) {
    const qsizetype instance = both.indexOf('\0');
    if (instance < 0)
        return {};
    const QString name = textFromProperty(both.sliced(instance + 1));
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

QString textFromProperty(QByteArrayView bytes) {
    if (const qsizetype end = bytes.indexOf('\0'); end >= 0)
        bytes = bytes.first(end);
    // Latin-1 by the convention, UTF-8 by the habit of most.
    using Flag = QStringDecoder::Flag;
    QStringDecoder utf8(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

std::vector<std::uint32_t> wordsFromProperty(QByteArrayView bytes) {
    std::vector<std::uint32_t> words(static_cast<std::size_t>(bytes.size()) /
                                     sizeof(std::uint32_t));
    if (!words.empty())
        std::memcpy(words.data(), bytes.data(), words.size() * sizeof(std::uint32_t));
    return words;
}

} // namespace x11
