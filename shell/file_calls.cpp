// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/file_calls.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <vector>

int writeAll(int descriptor, std::span<const std::span<const std::uint8_t>> parts) {
    std::vector<iovec> left;
    for (const auto &part : parts)
        left.push_back({const_cast<std::uint8_t *>(part.data()), part.size()});
    for (std::span<iovec> rest(left); !rest.empty();) {
        const std::size_t count = std::min<std::size_t>(rest.size(), IOV_MAX);
        const ssize_t written = writev(descriptor, rest.data(), static_cast<int>(count));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        auto done = static_cast<std::size_t>(written);
        while (!rest.empty() && done >= rest.front().iov_len) {
            done -= rest.front().iov_len;
            rest = rest.subspan(1);
        }
        if (!rest.empty()) {
            rest.front().iov_base = static_cast<std::uint8_t *>(rest.front().iov_base) + done;
            rest.front().iov_len -= done;
        }
    }
    return 0;
}

int linkFile(const QString &existing, const QString &path) {
    const QByteArray from = QFile::encodeName(existing);
    const QByteArray to = QFile::encodeName(path);
    return link(from.constData(), to.constData()) == 0 ? 0 : errno;
}

std::optional<std::uint64_t> sizeOfOwnFile(const QString &path) {
    struct stat found = {};
    if (lstat(QFile::encodeName(path).constData(), &found) != 0 || !S_ISREG(found.st_mode) ||
        found.st_uid != geteuid())
        return std::nullopt;
    return static_cast<std::uint64_t>(found.st_size);
}

int exchangeFolders(const QString &one, const QString &other) {
    const QByteArray a = QFile::encodeName(one);
    const QByteArray b = QFile::encodeName(other);
    if (renameat2(AT_FDCWD, a.constData(), AT_FDCWD, b.constData(), RENAME_EXCHANGE) == 0)
        return 0;
    // Not every file system knows how to do that at once.
    const QByteArray between = a + ".moved";
    if (rename(a.constData(), between.constData()) != 0)
        return errno;
    if (rename(b.constData(), a.constData()) == 0 &&
        rename(between.constData(), b.constData()) == 0)
        return 0;
    const int error = errno;
    rename(between.constData(), a.constData());
    return error;
}
