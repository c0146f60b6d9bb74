// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/save/atomic_file.h"

#include "shell/file_calls.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

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
