// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/working_folders.h"

#include "tests/files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(WorkingFolders, frameFilesAreNumberedWithEightDigitsOrMoreWhateverTheFolderIsCalled) {
    EXPECT_EQ(working_folders::recordingFolder(QStringLiteral("/d/My %1 Docs/")),
              QStringLiteral("/d/My %1 Docs/Pallomar"));
    const QString folder = QStringLiteral("/d/a %1 b");
    EXPECT_EQ(working_folders::frameFile(folder, 0), QStringLiteral("/d/a %1 b/frame00000000.png"));
    EXPECT_EQ(working_folders::frameFile(folder, 123),
              folder + QStringLiteral("/frame00000123.png"));
    EXPECT_EQ(working_folders::frameFile(folder, 100'000'000),
              folder + QStringLiteral("/frame100000000.png"));
    EXPECT_EQ(working_folders::stagedFile(folder, 7), folder + QStringLiteral("/image7.png"));
}

TEST(WorkingFolders, aFolderIsMadeWithThoseAboveItAndAnythingOfItsNameCountsAsPresent) {
    const QTemporaryDir top;
    const QString deep = top.filePath(QStringLiteral("a/b/c"));
    EXPECT_TRUE(working_folders::ensureFolder(deep));
    EXPECT_TRUE(QDir(deep).exists());

    const QString plain = top.filePath(QStringLiteral("plain"));
    put(plain, "x");
    EXPECT_TRUE(working_folders::ensureFolder(plain));
    EXPECT_FALSE(working_folders::ensureFolder(plain + QStringLiteral("/below")));
}
