// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/preset_name.h"

#include <QLocale>

QString presetName(const QDateTime &made, const QString &suffix,
                   const std::function<bool(const QString &name)> &exists) {
    // No locale's digits: such a name would not sort, nor be found by somebody elsewhere.
    const QString stem = QStringLiteral("Tovarel ") +
                         QLocale::c().toString(made, QStringLiteral("yyyy-MM-dd HH.mm.ss"));
    QString name = stem + QLatin1Char('.') + suffix;
    for (int number = 2; exists(name); ++number)
        name = stem + QStringLiteral(" (%1).").arg(number) + suffix;
    return name;
}
