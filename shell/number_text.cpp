// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/number_text.h"

#include <QLocale>

#include <cmath>

namespace number_text {

namespace {

constexpr double halfTolerance = 1e-6; // of the last digit that is shown
constexpr double tenthsOfMinute = 600.0;

} // namespace

QString count(std::uint64_t number) { return QLocale().toString(qulonglong{number}); }

QString rate(double perSecond) {
    const double tenths = std::round(perSecond * 10.0);
    return decimal(tenths / 10.0, std::fmod(tenths, 10.0) == 0.0 ? 0 : 1);
}

QString decimal(double number, int decimals) {
    // 2.65 is a little less than that in binary, and would become 2.6.
    const double scale = std::pow(10.0, decimals);
    const double rounded =
        std::round(number * scale + std::copysign(halfTolerance, number)) / scale;
    return QLocale().toString(rounded, 'f', decimals);
}

QString time(double seconds) {
    const double tenths = std::round(seconds * 10.0 + halfTolerance);
    const double minutes = std::floor(tenths / tenthsOfMinute);
    const double rest = (tenths - minutes * tenthsOfMinute) / 10.0;
    const QLocale locale;
    return QStringLiteral("%1:%2%3").arg(locale.toString(qulonglong(minutes)),
                                         rest < 10.0 ? locale.zeroDigit() : QString(),
                                         locale.toString(rest, 'f', 1));
}

QString bytes(std::uint64_t amount) {
    return QLocale()
        .formattedDataSize(static_cast<qint64>(amount), 1, QLocale::DataSizeSIFormat)
        .replace(QLatin1Char(' '), QChar::Nbsp);
}

} // namespace number_text
