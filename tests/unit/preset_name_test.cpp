// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/preset_name.h"

#include <QLocale>

#include <gtest/gtest.h>

TEST(PresetName, tellsTheTimeInAnyLocaleAndTakesTheFirstNumberThatIsFree) {
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("ar_EG")));
    const QDateTime made(QDate(2026, 1, 5), QTime(4, 3, 21, 999));
    QStringList taken;
    const auto exists = [&taken](const QString &name) { return taken.contains(name); };
    for (const char *expected :
         {"Tovarel 2026-01-05 04.03.21.gif", "Tovarel 2026-01-05 04.03.21 (2).gif",
          "Tovarel 2026-01-05 04.03.21 (3).gif"}) {
        const QString name = presetName(made, QStringLiteral("gif"), exists);
        EXPECT_EQ(name, QString::fromLatin1(expected));
        taken += name;
    }
    EXPECT_EQ(presetName(made, QStringLiteral("webp"), exists),
              QStringLiteral("Tovarel 2026-01-05 04.03.21.webp"));
    QLocale::setDefault(before);
}
