// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/memory_budget.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <algorithm>

namespace {

constexpr std::uint64_t kibi = 1024;
constexpr std::uint64_t firstPart = 10; // the first pause comes at this part of all memory
constexpr std::uint64_t nextPart = 2;   // later ones at this part of what was left before

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::optional<std::uint64_t> numberIn(const QString &path) {
    bool read = false;
    const std::uint64_t number = contentOf(path).trimmed().toULongLong(&read);
    return read ? std::optional(number) : std::nullopt;
}

/// The number after a name at the beginning of a line: "MemTotal:       16318480 kB".
std::optional<std::uint64_t> numberAfter(const QByteArray &name, const QByteArray &text) {
    for (const QByteArray &line : text.split('\n')) {
        if (!line.startsWith(name))
            continue;
        bool read = false;
        const std::uint64_t number =
            line.mid(name.size()).simplified().split(' ').front().toULongLong(&read);
        if (read)
            return number;
    }
    return {};
}

/// Narrows the state to one control group's limit, where it has one.
void narrow(MemoryState &state, const QString &folder, const QString &limitFile,
            const QString &usageFile, const QByteArray &cacheName) {
    const auto limit = numberIn(folder + limitFile);
    const auto usage = numberIn(folder + usageFile);
    if (!limit || !usage || *limit >= state.total)
        return;
    // Files that were read and can be forgotten count as used, and are not.
    const std::uint64_t cache =
        numberAfter(cacheName, contentOf(folder + QStringLiteral("memory.stat"))).value_or(0);
    const std::uint64_t used = *usage - std::min(*usage, cache);
    state.total = *limit;
    state.available = std::min(state.available, *limit - std::min(*limit, used));
}

/// The path of our control group, "/" and more, of one controller; the unified one has no name.
QString groupOf(const QByteArray &groups, const QByteArray &controller) {
    for (const QByteArray &line : groups.split('\n')) {
        const QList<QByteArray> parts = line.split(':');
        if (parts.size() >= 3 && parts[1].split(',').contains(controller))
            return QString::fromUtf8(line.mid(parts[0].size() + parts[1].size() + 2));
    }
    return {};
}

} // namespace

std::optional<MemoryState> machineMemory(const QString &root) {
    const QByteArray text = contentOf(root + QStringLiteral("proc/meminfo"));
    const auto total = numberAfter("MemTotal:", text);
    const auto available = numberAfter("MemAvailable:", text);
    if (!total || !available)
        return {};
    MemoryState state{*total * kibi, *available * kibi};

    const QByteArray groups = contentOf(root + QStringLiteral("proc/self/cgroup"));
    const QString mount = root + QStringLiteral("sys/fs/cgroup");
    // A limit of any group above ours holds for us too.
    for (QString group = groupOf(groups, {}); !group.isEmpty();
         group.truncate(std::max<qsizetype>(group.lastIndexOf(u'/'), 0))) {
        if (!group.endsWith(u'/'))
            group += u'/';
        narrow(state, mount + group, QStringLiteral("memory.max"), QStringLiteral("memory.current"),
               "inactive_file ");
        group.chop(1);
    }
    QString group = groupOf(groups, "memory");
    if (!group.isEmpty() && !group.endsWith(u'/'))
        group += u'/';
    for (const QString &folder :
         {mount + QStringLiteral("/memory") + group, mount + QStringLiteral("/memory/")})
        narrow(state, folder, QStringLiteral("memory.limit_in_bytes"),
               QStringLiteral("memory.usage_in_bytes"), "total_inactive_file ");
    return state;
}

std::uint64_t MemoryBudget::mark(const MemoryState &state) const {
    return mark_.value_or(state.total / firstPart);
}

bool MemoryBudget::isSpent(const MemoryState &state) {
    if (state.available >= mark(state))
        return false;
    mark_ = state.available / nextPart;
    return true;
}

std::optional<double> MemoryBudget::secondsLeft(const MemoryState &state,
                                                double bytesPerSecond) const {
    if (bytesPerSecond < 1)
        return {};
    const std::uint64_t left = state.available - std::min(state.available, mark(state));
    return static_cast<double>(left) / bytesPerSecond;
}
