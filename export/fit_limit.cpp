// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/fit_limit.h"

#include <QLocale>

#include <cmath>

namespace {

constexpr double bytesPerKB = 1e3;
constexpr double bytesPerMB = 1e6;
constexpr double mostBytes = 1e12; // more than any recording takes

struct Unit {
    QLatin1String sign;
    double bytes;
};
// The last two are octets in French.
constexpr Unit units[] = {{QLatin1String("kB"), bytesPerKB},
                          {QLatin1String("MB"), bytesPerMB},
                          {QLatin1String("ko"), bytesPerKB},
                          {QLatin1String("Mo"), bytesPerMB}};

} // namespace

FitLimit fitLimitOf(QStringView text) {
    text = text.trimmed();
    if (text.isEmpty())
        return {};
    double unit = bytesPerMB;
    for (const Unit &each : units)
        if (text.endsWith(each.sign, Qt::CaseInsensitive)) {
            text = text.chopped(each.sign.size()).trimmed();
            unit = each.bytes;
            break;
        }
    bool isNumber = false;
    double number = QLocale().toDouble(text, &isNumber);
    if (!isNumber)
        number = QLocale::c().toDouble(text, &isNumber);
    const double bytes = std::round(number * unit);
    if (!isNumber || !(bytes >= 1.0) || bytes > mostBytes)
        return {.isWrong = true};
    return {.bytes = static_cast<std::uint64_t>(bytes)};
}

QString fitLimitText(std::uint64_t bytes) {
    const auto number = static_cast<double>(bytes);
    const bool inMB = number >= bytesPerMB;
    // Shortest digits that give the same number again, without marks between them: it is typed on.
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return (inMB ? qtTrId("IDD_LIMIT_MB") : qtTrId("IDD_LIMIT_KB"))
        .arg(locale.toString(number / (inMB ? bytesPerMB : bytesPerKB), 'g',
                             QLocale::FloatingPointShortest));
}
