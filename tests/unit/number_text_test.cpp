// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/number_text.h"

#include <QLocale>

#include <gtest/gtest.h>

TEST(NumberText, readsAsTheLocaleWritesIt) {
    const QLocale before;
    const struct {
        const char *locale;
        std::string texts[5];
    } cases[] = {{"en_US", {"1,234", "12", "12.4", "7.30", "1.2\u00a0MB"}},
                 {"de_DE", {"1.234", "12", "12,4", "7,30", "1,2\u00a0MB"}},
                 {"fr_FR", {"1\u202f234", "12", "12,4", "7,30", "1,2\u00a0Mo"}}};
    for (const auto &[locale, texts] : cases) {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        EXPECT_EQ(number_text::count(1234).toStdString(), texts[0]);
        EXPECT_EQ(number_text::rate(12.04).toStdString(), texts[1]) << "nothing behind the sign";
        EXPECT_EQ(number_text::rate(12.35).toStdString(), texts[2]);
        EXPECT_EQ(number_text::decimal(7.3, 2).toStdString(), texts[3]);
        EXPECT_EQ(number_text::bytes(1'234'567).toStdString(), texts[4]) << "in units of 1,000";
    }
    QLocale::setDefault(before);
}
