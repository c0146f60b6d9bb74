// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// By which a file is known to be the same and unchanged.
struct FileIdentity {
    std::uint64_t device;
    std::uint64_t node;
    std::int64_t bytes;
    std::int64_t seconds; ///< When its content was changed last.
    std::int64_t nanoseconds;

    bool operator==(const FileIdentity &) const = default;
};

/// Of the regular file at `path`, as of now; none where there is none.
std::optional<FileIdentity> identityOf(const QString &path);
