// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/memory_budget.h"

#include "tests/support/files.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <array>

namespace {

/// A root folder in which a test says what the kernel tells.
class KernelFiles {
public:
    KernelFiles() {
        write("proc/meminfo",
              "MemTotal:       1000 kB\nMemFree:   100 kB\nMemAvailable:    600 kB\n");
    }
    void write(const char *path, const char *text) {
        const QString file = root_.filePath(QString::fromLatin1(path));
        QDir().mkpath(QFileInfo(file).path());
        put(file, text);
    }
    std::optional<MemoryState> memory() const { return machineMemory(root_.path() + u'/'); }

private:
    QTemporaryDir root_;
};

TEST(MachineMemory, isTheMachinesUnlessSomeControlGroupAllowsLess) {
    KernelFiles kernel;
    ASSERT_TRUE(kernel.memory());
    EXPECT_EQ(kernel.memory()->total, 1000u * 1024);
    EXPECT_EQ(kernel.memory()->available, 600u * 1024);

    kernel.write("proc/self/cgroup", "0::/user/app\n");
    kernel.write("sys/fs/cgroup/user/app/memory.max", "max\n");
    kernel.write("sys/fs/cgroup/user/app/memory.current", "1000\n");
    EXPECT_EQ(kernel.memory()->total, 1000u * 1024) << "a group without a limit";
    kernel.write("sys/fs/cgroup/user/memory.max", "100000\n");
    kernel.write("sys/fs/cgroup/user/memory.current", "90000\n");
    kernel.write("sys/fs/cgroup/user/memory.stat", "anon 1\ninactive_file 30000\n");
    EXPECT_EQ(kernel.memory()->total, 100000u) << "the limit of the group above";
    EXPECT_EQ(kernel.memory()->available, 40000u) << "what is only kept for a reader is free";

    kernel.write("proc/self/cgroup", "4:cpu,memory:/box\n0::/\n");
    kernel.write("sys/fs/cgroup/memory/box/memory.limit_in_bytes", "50000\n");
    kernel.write("sys/fs/cgroup/memory/box/memory.usage_in_bytes", "60000\n");
    EXPECT_EQ(kernel.memory()->total, 50000u);
    EXPECT_EQ(kernel.memory()->available, 0u);
}

TEST(MachineMemory, isUnknownWhereTheKernelDoesNotTell) {
    KernelFiles kernel;
    kernel.write("proc/meminfo", "MemTotal: much kB\n");
    EXPECT_FALSE(kernel.memory());
}

TEST(MemoryBudget, pausesAtATenthAndThenAtHalfOfWhatWasLeft) {
    MemoryBudget budget;
    EXPECT_FALSE(budget.isSpent({1000, 100}));
    EXPECT_TRUE(budget.isSpent({1000, 99}));
    EXPECT_FALSE(budget.isSpent({1000, 99})) << "once";
    EXPECT_FALSE(budget.isSpent({1000, 49}));
    EXPECT_TRUE(budget.isSpent({1000, 48}));
    EXPECT_TRUE(budget.isSpent({1000, 20}));
    EXPECT_FALSE(budget.isSpent({1000, 15}));

    const MemoryBudget fresh;
    EXPECT_DOUBLE_EQ(fresh.secondsLeft({1000, 600}, 50).value(), 10);
    EXPECT_DOUBLE_EQ(fresh.secondsLeft({1000, 60}, 50).value(), 0);
    EXPECT_FALSE(fresh.secondsLeft({1000, 600}, 0));
}

} // namespace
