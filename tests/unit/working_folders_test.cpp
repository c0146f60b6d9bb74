// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/working_folders.h"

#include "tests/support/files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

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

namespace {

/// Somebody whom modes stop, unlike root, for as long as it lives. Paths handed to `own` are his.
class PlainUser {
public:
    explicit PlainUser(std::initializer_list<QString> own) {
        for (const QString &path : own)
            EXPECT_TRUE(!isRoot_ ||
                        chown(QFile::encodeName(path).constData(), nobody, nobody) == 0);
        EXPECT_TRUE(!isRoot_ || seteuid(nobody) == 0);
    }
    ~PlainUser() { EXPECT_TRUE(!isRoot_ || seteuid(0) == 0); }
    PlainUser(const PlainUser &) = delete;
    PlainUser &operator=(const PlainUser &) = delete;

private:
    static constexpr uid_t nobody = 65534;
    const bool isRoot_ = geteuid() == 0;
};

} // namespace

TEST(WorkingFolders, whatIsLockedInASubfolderDoesNotKeepItsNeighbours) {
    const QTemporaryDir top;
    const QString below = top.filePath(QStringLiteral("below"));
    const QString locked = below + QStringLiteral("/locked");
    const QString held = locked + QStringLiteral("/held");
    ASSERT_TRUE(QDir().mkpath(locked));
    ASSERT_TRUE(QDir().mkpath(below + QStringLiteral("/m/deep")));
    put(held, "x");
    for (const char *neighbour : {"/below/a", "/below/z", "/below/m/deep/x", "/next", "/.hidden"})
        put(top.path() + QLatin1String(neighbour), "x");
    ASSERT_TRUE(QFile::link(QStringLiteral("nowhere"), below + QStringLiteral("/broken")));
    ASSERT_EQ(chmod(QFile::encodeName(locked).constData(), 0500), 0);
    {
        const PlainUser user({top.path(), below, locked, below + QStringLiteral("/m"),
                              below + QStringLiteral("/m/deep")});
        working_folders::removeContent(top.path().toStdString());
    }
    const auto left = [](const QString &folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                      QDir::NoDotAndDotDot);
    };
    EXPECT_EQ(left(top.path()), QStringList(QStringLiteral("below")));
    EXPECT_EQ(left(below), QStringList(QStringLiteral("locked")));
    EXPECT_TRUE(QFile::exists(held));
    ASSERT_EQ(chmod(QFile::encodeName(locked).constData(), 0700), 0);
}
