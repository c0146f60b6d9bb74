// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/aspect_ratio.h"
#include "export/encoder_arguments.h"
#include "export/size_text.h"
#include "platform/text_number.h"
#include "tests/fuzz/require.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace {

/// The C library reads as the fields do, in the C locale and but for one thing.
void checkInteger(const QString &text) {
    const QByteArray bytes = text.toUtf8();
    const bool ascii = std::all_of(text.begin(), text.end(),
                                   [](QChar c) { return c.unicode() > 0 && c.unicode() < 0x80; });
    if (ascii)
        REQUIRE(integerValue(text) == std::strtoll(bytes.constData(), nullptr, 10));
}

void checkFloat(const QString &text) {
    const float value = floatValue(text);
    REQUIRE(std::isfinite(value));
    for (const float ratio : {value, 1.5f, 1e-30f, 1e30f}) {
        aspect_ratio::cut(value);
        if (ratio != 0.0f)
            aspect_ratio::heightForWidth(value, ratio);
        aspect_ratio::widthForHeight(value, ratio);
    }
}

void checkArguments(const QString &text) {
    using namespace encoder_arguments;
    const QStringList webp = webpArguments(text, std::array{WebPFrame{text, 40}}, {}, text);
    REQUIRE(webp.size() == 11 && webp[8] == text && webp[10] == text);
    bool number = false;
    webp[2].toInt(&number);
    REQUIRE(number);
    // A folder's name may be anything; what the pattern leads to is that folder.
    QString pattern = inputPattern(text);
    REQUIRE(pattern.endsWith(u"/image%d.png"));
    pattern.chop(12);
    REQUIRE(pattern.count(u'%') == 2 * text.count(u'%'));
    REQUIRE(pattern.replace(QStringLiteral("%%"), QStringLiteral("%")) == text);
    const QStringList gif =
        gifArguments(text, text, std::array{frame_timing::TimedFrame{0, 2}}, text, text);
    const QString scale = QStringLiteral(",scale=") + text + u'x' + text +
                          QStringLiteral(":flags=lanczos[x];[x][1:v]paletteuse");
    REQUIRE(std::any_of(gif.begin(), gif.end(),
                        [&scale](const QString &argument) { return argument.endsWith(scale); }));
}

} // namespace

/// What may be typed into the fields for sizes and loops.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const QString text = size % 2 == 0 ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
    checkInteger(text);
    checkFloat(text);
    checkArguments(text);
    const std::int64_t value = integerValue(text);
    switch (sizeTextProblem(text)) {
    case SizeTextProblem::None:
        REQUIRE(value >= 1 && value <= 65535);
        REQUIRE(text.trimmed().mid(text.trimmed().startsWith(u'+')).toLongLong() == value);
        break;
    case SizeTextProblem::Zero:
        REQUIRE(value == 0);
        break;
    case SizeTextProblem::Negative:
        REQUIRE(value < 0);
        break;
    case SizeTextProblem::NotPlain:
    case SizeTextProblem::TooLarge:
        REQUIRE(value > 0);
        break;
    }
    return 0;
}
