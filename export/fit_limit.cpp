// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/fit_limit.h"

#include <QLocale>

#include <cmath>

namespace {

constexpr double bytesPerMB = 1e6;
constexpr double mostMB = 1e6; // more than any recording takes

} // namespace

FitLimit fitLimitOf(QStringView text) {
    text = text.trimmed();
    if (text.isEmpty())
        return {};
    for (const QLatin1String unit : {QLatin1String("MB"), QLatin1String("Mo")}) // octets in French
        if (text.endsWith(unit, Qt::CaseInsensitive))
            text = text.chopped(unit.size()).trimmed();
    bool isNumber = false;
    double number = QLocale().toDouble(text, &isNumber);
    if (!isNumber)
        number = QLocale::c().toDouble(text, &isNumber);
    const double bytes = std::floor(number * bytesPerMB);
    if (!isNumber || !(bytes >= 1.0) || number > mostMB)
        return {.isWrong = true};
    return {.bytes = static_cast<std::uint64_t>(bytes)};
}
