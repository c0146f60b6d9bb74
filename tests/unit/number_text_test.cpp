// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/number_text.h"

#include <QLocale>

#include <gtest/gtest.h>

TEST(NumberText, readsAsTheLocaleWritesIt) {
    const QLocale before;
    const struct {
        const char *locale;
        std::string texts[6];
    } cases[] = {{"en_US", {"1,234", "12", "12.4", "7.30", "1.2\u00a0MB", "12:03.5"}},
                 {"de_DE", {"1.234", "12", "12,4", "7,30", "1,2\u00a0MB", "12:03,5"}},
                 {"fr_FR", {"1\u202f234", "12", "12,4", "7,30", "1,2\u00a0Mo", "12:03,5"}}};
    for (const auto &[locale, texts] : cases) {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        EXPECT_EQ(number_text::count(1234).toStdString(), texts[0]);
        EXPECT_EQ(number_text::rate(12.04).toStdString(), texts[1]) << "nothing behind the sign";
        EXPECT_EQ(number_text::rate(12.35).toStdString(), texts[2]);
        EXPECT_EQ(number_text::decimal(7.3, 2).toStdString(), texts[3]);
        EXPECT_EQ(number_text::time(723.45).toStdString(), texts[5]);
        EXPECT_EQ(number_text::bytes(1'234'567).toStdString(), texts[4]) << "in units of 1,000";
    }
    QLocale::setDefault(before);
}

TEST(NumberText, halvesAreRoundedUpAlsoWhereTheyAreALittleLessInBinary) {
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    EXPECT_EQ(number_text::decimal(2.65), QStringLiteral("2.7"));
    EXPECT_EQ(number_text::decimal(53.0 / 20.0), QStringLiteral("2.7"));
    EXPECT_EQ(number_text::decimal(2.649), QStringLiteral("2.6"));
    EXPECT_EQ(number_text::time(59.95), QStringLiteral("1:00.0"));
    EXPECT_EQ(number_text::time(0), QStringLiteral("0:00.0"));
    QLocale::setDefault(before);
}
