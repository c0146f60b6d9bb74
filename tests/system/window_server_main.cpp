// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/system/x_client.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>
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

/// True when the display is meant to have none.
bool waitForCompositingManager() {
    if (!std::getenv("TOVAREL_COMPOSITOR"))
        return true;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    XClient client;
    while (!client.compositingManagerRuns()) {
        if (std::chrono::steady_clock::now() > deadline) {
            std::fputs("no compositing manager\n", stderr);
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

} // namespace

int main(int argc, char **argv) {
    if (argc == 3 && std::strcmp(argv[1], "--foreign-program") == 0)
        return runForeignProgram(argv[2]);
    testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    if (!waitForCompositingManager())
        return 1;
    return RUN_ALL_TESTS();
}
