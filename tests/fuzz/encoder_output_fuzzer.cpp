// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/progress_parser.h"
#include "export/tool_failure.h"
#include "tests/fuzz/require.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>

namespace {

constexpr char bom[] = "\xef\xbb\xbf"; // a mark of the encoding, no part of the text

void checkText(QByteArrayView bytes) {
    const std::optional<QString> text = strictUtf8(bytes);
    if (!text)
        return;
    const qsizetype skipped = bytes.startsWith(QByteArrayView(bom)) ? 3 : 0;
    REQUIRE(text->toUtf8() == bytes.sliced(skipped));
}

void checkSeconds(QByteArrayView chunk) {
    const std::optional<double> seconds = secondsInChunk(chunk);
    const qsizetype mark = chunk.indexOf("time=");
    if (mark < 0 || chunk.size() < mark + 13 || !strictUtf8(chunk))
        REQUIRE(!seconds);
    const std::optional<double> added = secondsOfAddedFrame(chunk);
    if (chunk.indexOf('\n') < 0 || chunk.indexOf("at time ") < 0)
        REQUIRE(!added);
    for (const double duration : {0.0, 3.0, 1e300})
        progressPercentage(seconds.value_or(added.value_or(0)), duration);
}

void checkLines(QByteArrayView output) {
    const QString lines = lastMeaningfulLines(output);
    const QStringList list = lines.split(u'\n');
    REQUIRE(list.size() <= 6);
    for (const QString &line : list) {
        REQUIRE(line.size() <= 201);
        REQUIRE(line == line.simplified() || line.endsWith(QChar(u'…')));
        REQUIRE(std::all_of(line.begin(), line.end(),
                            [](QChar c) { return c.isPrint() || c.isSurrogate(); }));
    }
    REQUIRE(lines.isEmpty() || !list.contains(QString()));
}

} // namespace

/// What an encoder may write, in chunks: the first byte of each tells how long it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    QByteArrayView rest(data, static_cast<qsizetype>(size));
    QByteArray all;
    while (!rest.isEmpty()) {
        const qsizetype length =
            std::min<qsizetype>(static_cast<unsigned char>(rest.front()), rest.size() - 1);
        const QByteArrayView chunk = rest.sliced(1, length);
        rest = rest.sliced(1 + length);
        all += chunk;
        checkText(chunk);
        checkSeconds(chunk);
    }
    checkLines(all);
    return 0;
}
