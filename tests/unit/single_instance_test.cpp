// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/single_instance.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>

TEST(SingleInstance, aFolderThatCannotBeUsedNeverKeepsTheProgramFromStarting) {
    const SingleInstance instance(QStringLiteral("/nonexistent/folder"));
    EXPECT_TRUE(instance.isFirst());
}

/// Speaks to the first instance from another thread while its event loop turns here.
template <class Ask> auto answered(Ask ask) {
    auto answer = std::async(std::launch::async, ask);
    while (answer.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
        QCoreApplication::processEvents();
    return answer.get();
}

TEST(SingleInstance, isToldWishesAndTakesSilenceForThatOfASecondStart) {
    const QTemporaryDir folder;
    EXPECT_EQ(SingleInstance::tell(folder.path(), wishes::stop), std::nullopt) << "nobody there";
    SingleInstance first(folder.path());
    QStringList heard;
    first.listen([&heard](const QString &wish) {
        heard << wish;
        return wish == wishes::stop ? WishAnswer::NotRecording : WishAnswer::Done;
    });
    const auto tell = [&folder](QLatin1StringView wish) {
        return answered([&folder, wish] { return SingleInstance::tell(folder.path(), wish); });
    };
    EXPECT_EQ(tell(wishes::toggle), WishAnswer::Done);
    EXPECT_EQ(tell(wishes::stop), WishAnswer::NotRecording);
    EXPECT_TRUE(answered([&folder] {
        constexpr int patience = 10000; // milliseconds
        QLocalSocket silent;
        silent.connectToServer(folder.filePath(QStringLiteral("tovarel.socket")));
        return silent.waitForConnected(patience) && silent.waitForReadyRead(patience);
    }));
    EXPECT_EQ(heard, (QStringList{wishes::toggle, wishes::stop, wishes::comeForward}));
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
