// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/atomic_file.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

constexpr mode_t anyoneAsTheUmaskAllows = 0666;

/// A file of this name can only be the rest of an earlier run that was ended in mid-write.
int createNew(const QByteArray &path) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    const int descriptor = open(path.constData(), flags, anyoneAsTheUmaskAllows);
    if (descriptor >= 0 || errno != EEXIST)
        return descriptor;
    unlink(path.constData());
    return open(path.constData(), flags, anyoneAsTheUmaskAllows);
}

int writeAll(int descriptor, std::span<const std::uint8_t> data) {
    while (!data.empty()) {
        const ssize_t written = write(descriptor, data.data(), data.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        data = data.subspan(static_cast<std::size_t>(written));
    }
    return 0;
}

} // namespace

int writeFileAtomically(const QString &path, std::span<const std::uint8_t> data) {
    const QByteArray target = QFile::encodeName(path);
    const QByteArray temporary = target + ".part";
    const int descriptor = createNew(temporary);
    if (descriptor < 0)
        return errno;
    int error = writeAll(descriptor, data);
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
