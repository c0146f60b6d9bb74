// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <future>
#include <memory>

TEST(SingleInstance, aFolderThatCannotBeUsedNeverKeepsTheProgramFromStarting) {
    const SingleInstance instance(QStringLiteral("/nonexistent/folder"));
    EXPECT_TRUE(instance.isFirst());
}

TEST(SingleInstance, takesSilenceForTheWishOfASecondStart) {
    const QTemporaryDir folder;
    SingleInstance first(folder.path());
    QStringList heard;
    first.listen([&heard](const QString &wish) {
        heard << wish;
        return WishAnswer::Done;
    });
    QLocalSocket silent;
    silent.connectToServer(folder.filePath(QStringLiteral("tovarel.socket")));
    EXPECT_TRUE(QTest::qWaitFor([&silent] { return silent.bytesAvailable() > 0; }, 10'000));
    EXPECT_EQ(heard, QStringList(wishes::comeForward));
}

TEST(SingleInstance, aFirstOneThatEndsWhenItIsAskedHasNotComeForward) {
    constexpr int patience = 10000; // milliseconds
    const QTemporaryDir folder;
    std::promise<bool> listens;
    const std::future<void> dying = std::async(std::launch::async, [&] {
        QLocalServer server;
        listens.set_value(server.listen(folder.filePath(QStringLiteral("tovarel.socket"))));
        server.waitForNewConnection(patience);
        const std::unique_ptr<QLocalSocket> asked(server.nextPendingConnection());
    });
    ASSERT_TRUE(listens.get_future().get());
    EXPECT_FALSE(SingleInstance(folder.path()).askFirstToComeForward());
}
