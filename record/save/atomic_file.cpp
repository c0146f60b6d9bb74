// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/save/atomic_file.h"

#include <QFile>

#include <fcntl.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <vector>

namespace {

/// A file of this name can only be the rest of an earlier run that was ended in mid-write.
int createNew(const QByteArray &path, mode_t mode) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    const int descriptor = open(path.constData(), flags, mode);
    if (descriptor >= 0 || errno != EEXIST)
        return descriptor;
    unlink(path.constData());
    return open(path.constData(), flags, mode);
}

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

} // namespace

int writeFileAtomically(const QString &path, std::span<const std::span<const std::uint8_t>> parts,
                        mode_t mode) {
    const QByteArray target = QFile::encodeName(path);
    const QByteArray temporary = target + ".part";
    const int descriptor = createNew(temporary, mode);
    if (descriptor < 0)
        return errno;
    int error = writeAll(descriptor, parts);
    // A file system may report a full disk only here.
    if (close(descriptor) != 0 && error == 0)
        error = errno;
    if (error == 0 && std::rename(temporary.constData(), target.constData()) != 0)
        error = errno;
    if (error != 0)
        unlink(temporary.constData());
    return error;
}

int linkFile(const QString &existing, const QString &path) {
    const QByteArray from = QFile::encodeName(existing);
    const QByteArray to = QFile::encodeName(path);
    return link(from.constData(), to.constData()) == 0 ? 0 : errno;
}
