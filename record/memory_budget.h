// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// What a recording may take of the machine's memory, all in bytes.
struct MemoryState {
    /// All there is for us: the machine's memory, or the least limit of the control groups that we
    /// are in (the kernel's cgroup documentation, versions 1 and 2).
    std::uint64_t total = 0;
    /// What can still be taken of it without pushing anything out to disk.
    std::uint64_t available = 0;
};

/// As the kernel reports it; none where it doesn't. `root` replaces the root folder, for tests.
std::optional<MemoryState> machineMemory(const QString &root = QStringLiteral("/"));

/// Says when a recording should pause, before the machine runs out of memory: once when less than a
/// tenth of it is left, and when the user goes on, once more at half of what was left then, and so
/// on. Knows no clock and asks nobody.
class MemoryBudget {
public:
    /// Whether to pause now; true once for each of the marks.
    bool isSpent(const MemoryState &state);

    /// How long memory lasts, in seconds, until the next pause, while a recording grows by so many
    /// bytes a second; none when it doesn't grow.
    std::optional<double> secondsLeft(const MemoryState &state, double bytesPerSecond) const;

private:
    std::uint64_t mark(const MemoryState &state) const;

    std::optional<std::uint64_t> mark_; // after the first pause
};
