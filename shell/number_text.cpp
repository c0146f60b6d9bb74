// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/number_text.h"

#include <QLocale>

#include <cmath>

namespace number_text {

QString count(std::uint64_t number) { return QLocale().toString(qulonglong{number}); }

QString rate(double perSecond) {
    const double tenths = std::round(perSecond * 10.0);
    return decimal(tenths / 10.0, std::fmod(tenths, 10.0) == 0.0 ? 0 : 1);
}

QString decimal(double number, int decimals) { return QLocale().toString(number, 'f', decimals); }

QString bytes(std::uint64_t amount) {
    return QLocale()
        .formattedDataSize(static_cast<qint64>(amount), 1, QLocale::DataSizeSIFormat)
        .replace(QLatin1Char(' '), QChar::Nbsp);
}

} // namespace number_text
