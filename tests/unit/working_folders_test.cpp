// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/working_folders.h"

#include "app/app_delegate.h"
#include "platform/null/null_window_server.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

void writeFile(const QString &path) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x");
}

} // namespace

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
    writeFile(plain);
    EXPECT_TRUE(working_folders::ensureFolder(plain));
    EXPECT_FALSE(working_folders::ensureFolder(plain + QStringLiteral("/below")));
}

TEST(WorkingFolders, emptyingTakesEverythingInsideAndNothingBeyondAndKeepsTheFolder) {
    const QTemporaryDir top;
    const QString folder = top.filePath(QStringLiteral("folder"));
    const QString outside = top.filePath(QStringLiteral("outside"));
    ASSERT_TRUE(QDir().mkpath(folder + QStringLiteral("/sub/deeper")));
    ASSERT_TRUE(QDir().mkpath(outside));
    writeFile(outside + QStringLiteral("/kept"));
    writeFile(folder + QStringLiteral("/frame00000000.png"));
    writeFile(folder + QStringLiteral("/.hidden"));
    writeFile(folder + QStringLiteral("/sub/.hidden"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/nowhere"), folder + QStringLiteral("/broken")));
    ASSERT_TRUE(QFile::link(outside, folder + QStringLiteral("/link")));

    AppDelegate delegate({.windowServer = std::make_unique<NullWindowServer>(QString()),
                          .documentsFolder = top.path()});
    delegate.RemoveAllContentInFolder(folder);
    EXPECT_TRUE(QDir(folder).exists());
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                     QDir::NoDotAndDotDot),
              QStringList());
    EXPECT_TRUE(QFile::exists(outside + QStringLiteral("/kept")));

    // A missing folder and a plain file in its place are nothing to empty.
    delegate.RemoveAllContentInFolder(top.filePath(QStringLiteral("missing")));
    delegate.RemoveAllContentInFolder(outside + QStringLiteral("/kept"));
    EXPECT_TRUE(QFile::exists(outside + QStringLiteral("/kept")));
}
