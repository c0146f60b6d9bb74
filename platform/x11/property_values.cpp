// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/property_values.h"

#include <QStringDecoder>
#include <QtEndian>

#include <cstring>

namespace {

// XSETTINGS 0.5: a byte order, three bytes unused, a serial number, the number of settings; then of
// each its kind, a byte unused, its name with its length, a serial number and its value. Texts are
// filled up to whole words.
enum SettingKind : std::uint8_t { Integer = 0, Text = 1, Color = 2 };
constexpr char leastFirst = 0;
constexpr qsizetype headSize = 8;
constexpr qsizetype colorSize = 8;

/// Reads such bytes from the front, as long as there are enough.
class Reader {
public:
    Reader(QByteArrayView bytes, bool isLeastFirst) : rest_(bytes), isLeastFirst_(isLeastFirst) {}

    bool failed() const { return failed_; }

    QByteArrayView take(qsizetype size) {
        if (size < 0 || size > rest_.size()) {
            failed_ = true;
            return {};
        }
        const QByteArrayView taken = rest_.first(size);
        rest_ = rest_.sliced(size);
        return taken;
    }
    template <class T> T number() {
        const QByteArrayView bytes = take(sizeof(T));
        if (failed_)
            return 0;
        return isLeastFirst_ ? qFromLittleEndian<T>(bytes.data()) : qFromBigEndian<T>(bytes.data());
    }
    QByteArrayView text(qsizetype length) {
        const QByteArrayView found = take(length);
        take((4 - length % 4) % 4);
        return found;
    }

private:
    QByteArrayView rest_;
    bool isLeastFirst_;
    bool failed_ = false;
};

} // namespace

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

std::optional<std::int32_t> settingFromProperty(QByteArrayView bytes, std::string_view name) {
    if (bytes.size() < headSize)
        return std::nullopt;
    Reader reader(bytes.sliced(headSize), bytes.front() == leastFirst);
    const auto count = reader.number<std::uint32_t>();
    for (std::uint32_t setting = 0; setting < count && !reader.failed(); ++setting) {
        const auto kind = reader.number<std::uint8_t>();
        reader.take(1);
        const QByteArrayView found = reader.text(reader.number<std::uint16_t>());
        reader.number<std::uint32_t>(); // when it was changed last
        if (kind == Text) {
            reader.text(reader.number<std::uint32_t>());
        } else if (kind == Color) {
            reader.take(colorSize);
        } else if (kind == Integer) {
            const auto value = reader.number<std::int32_t>();
            if (!reader.failed() && found == QByteArrayView(name.data(), qsizetype(name.size())))
                return value;
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace x11
