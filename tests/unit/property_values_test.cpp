// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/x11/property_values.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace {

TEST(SettingFromProperty, IsFoundBehindOthersInBothByteOrders) {
    // A text, a colour, and two numbers.
    const QByteArray leastFirst = QByteArray::fromHex("00000000"
                                                      "07000000"
                                                      "04000000") +
                                  QByteArray::fromHex("01000300") + QByteArray("abc\0", 4) +
                                  QByteArray::fromHex("01000000"
                                                      "05000000") +
                                  QByteArray("Fusio\0\0\0", 8) + QByteArray::fromHex("02000100") +
                                  QByteArray("c\0\0\0", 4) +
                                  QByteArray::fromHex("01000000"
                                                      "0100020003000400") +
                                  QByteArray::fromHex("00001400") + "Gtk/EnableAnimations" +
                                  QByteArray::fromHex("02000000"
                                                      "00000000") +
                                  QByteArray::fromHex("00000300") + QByteArray("dpi\0", 4) +
                                  QByteArray::fromHex("02000000"
                                                      "00800100");
    EXPECT_EQ(x11::settingFromProperty(leastFirst, "Gtk/EnableAnimations"), 0);
    EXPECT_EQ(x11::settingFromProperty(leastFirst, "dpi"), 98304);
    EXPECT_FALSE(x11::settingFromProperty(leastFirst, "abc")) << "a text";
    EXPECT_FALSE(x11::settingFromProperty(leastFirst, "Gtk"));
    for (qsizetype size = 0; size < leastFirst.size(); ++size)
        EXPECT_FALSE(x11::settingFromProperty(leastFirst.first(size), "dpi")) << "cut short";

    const QByteArray mostFirst = QByteArray::fromHex("01000000"
                                                     "00000007"
                                                     "00000001"
                                                     "00000003") +
                                 QByteArray("dpi\0", 4) +
                                 QByteArray::fromHex("00000002"
                                                     "00018000");
    EXPECT_EQ(x11::settingFromProperty(mostFirst, "dpi"), 98304);
}

} // namespace
