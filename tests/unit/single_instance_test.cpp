// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <thread>

TEST(SingleInstance, aSecondStartMakesTheFirstComeForwardAndAnEndedOneLeavesNoTrace) {
    const QTemporaryDir folder;
    auto first = std::make_unique<SingleInstance>(folder.path());
    ASSERT_TRUE(first->isFirst());
    int asked = 0;
    first->listen([&] { ++asked; });

    // The lock belongs to an open file, so this process can play the second start as well; its wait
    // must not stop the first one's event loop.
    std::thread secondStart([&] {
        const SingleInstance second(folder.path());
        EXPECT_FALSE(second.isFirst());
        second.askFirstToComeForward();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 1; }));
    secondStart.join();

    first.reset();
    // As after a crash: the socket's file is still there.
    QFile stale(folder.filePath(QStringLiteral("tovarel.socket")));
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.close();
    SingleInstance next(folder.path());
    ASSERT_TRUE(next.isFirst());
    next.listen([&] { ++asked; });
    std::thread thirdStart([&] { next.askFirstToComeForward(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 2; }));
    thirdStart.join();
}

TEST(SingleInstance, aFolderThatCannotBeUsedNeverKeepsTheProgramFromStarting) {
    const SingleInstance instance(QStringLiteral("/nonexistent/folder"));
    EXPECT_TRUE(instance.isFirst());
}
