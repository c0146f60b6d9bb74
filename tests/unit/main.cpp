// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include <gtest/gtest.h>

// Timers and sockets need an application object, which must outlive every test.
int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
