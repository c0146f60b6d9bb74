// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/safe_move.h"

#include "tests/support/files.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

namespace {

QStringList namesIn(const QTemporaryDir &folder) {
    return QDir(folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// A limit on the size of files stands in for a full disk: it needs no file system of its own.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit lower{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &lower);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit before_{};
};

/// The source lies on the same file system as the target, or on another one.
class SafeMove : public testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        ASSERT_TRUE(from.isValid() && to.isValid());
        struct stat a = {};
        struct stat b = {};
        stat(qPrintable(from.path()), &a);
        stat(qPrintable(to.path()), &b);
        if (GetParam() && a.st_dev == b.st_dev)
            GTEST_SKIP() << "this machine has no second file system to write to";
        put(source, gif);
    }

    const QByteArray gif = QByteArray(3 * 1024 * 1024 + 7, 'g');
    QTemporaryDir from{GetParam() ? QStringLiteral("/dev/shm/tovarel-XXXXXX")
                                  : QDir::tempPath() + QStringLiteral("/tovarel-XXXXXX")};
    QTemporaryDir to{QDir::tempPath() + QStringLiteral("/tovarel-XXXXXX")};
    const QString source = from.filePath(QStringLiteral("output.gif"));
    const QString target = to.filePath(QStringLiteral("mine 100%1.gif"));
};

INSTANTIATE_TEST_SUITE_P(FileSystems, SafeMove, testing::Bool(), [](const auto &param) {
    return std::string(param.param ? "Another" : "Same");
});

TEST_P(SafeMove, PlacesTheWholeFileAsANewOneOrOverAnOldOne) {
    const mode_t mask = umask(027);
    for (const bool existing : {false, true}) {
        put(source, gif);
        if (existing)
            put(target, "old");
        EXPECT_EQ(safeMove(source, target), std::nullopt);
        EXPECT_EQ(contentOf(target), gif);
        EXPECT_FALSE(QFile::exists(source));
        EXPECT_EQ(namesIn(to).size(), 1) << "nothing of ours is left over";
    }
    umask(mask);
    struct stat status = {};
    stat(qPrintable(target), &status);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_P(SafeMove, ReplacesNothingThatIsToBeKept) {
    const QString nowhere = to.filePath(QStringLiteral("nowhere"));
    ASSERT_TRUE(QFile::link(to.filePath(QStringLiteral("missing")), nowhere));
    put(target, "old");
    for (const QString &taken : {target, nowhere})
        EXPECT_TRUE(safeMove(source, taken, Existing::Keep).has_value());
    EXPECT_EQ(contentOf(target), "old");
    EXPECT_TRUE(QFileInfo(nowhere).isSymLink());
    EXPECT_EQ(contentOf(source), gif);
    EXPECT_EQ(namesIn(to).size(), 2) << "nothing of ours is left over";
    QFile::remove(target);
    EXPECT_EQ(safeMove(source, target, Existing::Keep), std::nullopt);
    EXPECT_EQ(contentOf(target), gif);
    EXPECT_FALSE(QFile::exists(source));
}

TEST_P(SafeMove, ReplacesALinkAndNotWhatItPointsTo) {
    const QString other = to.filePath(QStringLiteral("other.gif"));
    put(other, "precious");
    ASSERT_TRUE(QFile::link(other, target));
    EXPECT_EQ(safeMove(source, target), std::nullopt);
    EXPECT_EQ(contentOf(other), "precious");
    EXPECT_EQ(contentOf(target), gif);
}

TEST_P(SafeMove, RefusesWhatIsNotAFileAndKeepsTheSource) {
    const QString folder = to.filePath(QStringLiteral("folder"));
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString pipe = to.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    const QString inNothing = to.filePath(QStringLiteral("nothing/x.gif"));
    for (const QString &place : {folder, pipe, inNothing, source}) {
        const std::optional<QString> reason = safeMove(source, place);
        ASSERT_TRUE(reason.has_value()) << place.toStdString();
        EXPECT_FALSE(reason->isEmpty());
        EXPECT_EQ(contentOf(source), gif);
    }
    EXPECT_EQ(namesIn(to), QStringList({QStringLiteral("folder"), QStringLiteral("pipe")}));
}

TEST_P(SafeMove, SaysWhenTheSourceIsMissingAndKeepsTheOldFile) {
    ASSERT_TRUE(QFile::remove(source));
    put(target, "old");
    EXPECT_TRUE(safeMove(source, target).has_value());
    EXPECT_EQ(contentOf(target), "old");
}

TEST_P(SafeMove, KeepsTheOldFileWhenTheDiskIsFull) {
    if (!GetParam())
        GTEST_SKIP() << "a rename writes nothing";
    put(target, "old");
    std::optional<QString> reason;
    {
        const FileSizeLimit limit(1024 * 1024);
        reason = safeMove(source, target);
    }
    EXPECT_TRUE(reason.has_value());
    EXPECT_EQ(contentOf(target), "old");
    EXPECT_EQ(contentOf(source), gif);
    EXPECT_EQ(namesIn(to).size(), 1) << "the part that was written is gone";
}

TEST_P(SafeMove, LeavesAWholeFileWhenTheProgramIsKilledAtAnyInstant) {
    const QByteArray old(1024 * 1024, 'o');
    std::minstd_rand random(20260701);
    bool keptOld = false, gotNew = false;
    // From at once to long after the move, in steps that grow until an end of it was seen.
    for (int round = 0; round < 400 && !(round >= 60 && keptOld && gotNew); ++round) {
        put(source, gif);
        put(target, old);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            safeMove(source, target);
            _exit(0);
        }
        usleep(static_cast<unsigned>(random()) % static_cast<unsigned>(50 + 150 * round));
        kill(child, SIGKILL);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
        const QByteArray found = contentOf(target);
        ASSERT_TRUE(found == old || found == gif) << "round " << round << ": " << found.size();
        keptOld |= found == old;
        gotNew |= found == gif;
        EXPECT_TRUE(found == gif || contentOf(source) == gif) << "the result is kept as well";
    }
    EXPECT_TRUE(keptOld && gotNew);
}

} // namespace
