// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/text_number.h"

#include <QString>

#include <gtest/gtest.h>

#include <limits>

TEST(TextNumber, wholeNumbersAreReadUpToTheFirstForeignCharacter) {
    const struct {
        const char *text;
        std::int64_t value;
    } cases[] = {{"320px", 320},
                 {"  42", 42},
                 {"\t-7.9", -7},
                 {"+5", 5},
                 {"+-5", 0},
                 {"- 5", 0},
                 {"", 0},
                 {"abc", 0},
                 {"0x10", 0},
                 {"1,5", 1},
                 {"1e3", 1},
                 {"９", 0},
                 {"99999999999999999999", std::numeric_limits<std::int64_t>::max()},
                 {"-99999999999999999999", std::numeric_limits<std::int64_t>::min()}};
    for (const auto &c : cases)
        EXPECT_EQ(integerValue(QString::fromUtf8(c.text)), c.value) << c.text;
}

TEST(TextNumber, fractionsAreReadWithAPointInEveryLocaleAndWordsAreNoNumbers) {
    const struct {
        const char *text;
        float value;
    } cases[] = {{"320.7", 320.7f},
                 {" .5", 0.5f},
                 {"-2.5e1x", -25.0f},
                 {"3,7", 3.0f},
                 {"inf", 0.0f},
                 {"nan", 0.0f},
                 {"-inf", 0.0f},
                 {"0x1p3", 0.0f},
                 {"+1.5", 1.5f},
                 {"1e99", std::numeric_limits<float>::max()},
                 {"-1e99", std::numeric_limits<float>::lowest()},
                 {"1e-99", 0.0f}};
    for (const auto &c : cases)
        EXPECT_EQ(floatValue(QString::fromUtf8(c.text)), c.value) << c.text;
}
