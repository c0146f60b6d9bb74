// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/support/x_client.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace {

/// Another program with one window: shows it, says its number and waits until its input ends.
int runForeignProgram(const char *windowClass) {
    XClient client;
    const auto window = client.create({.place = {20, 20, 120, 90}});
    if (std::strlen(windowClass) > 0) {
        QByteArray both("instance");
        both += '\0';
        both += windowClass;
        client.setClass(window, both + '\0');
    }
    client.map(window);
    client.sync();
    std::printf("%u\n", window);
    std::fflush(stdout);
    char ignored = 0;
    while (read(STDIN_FILENO, &ignored, 1) > 0)
        continue;
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    if (argc == 3 && std::strcmp(argv[1], "--foreign-program") == 0)
        return runForeignProgram(argv[2]);
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
