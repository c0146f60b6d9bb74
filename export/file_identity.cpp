// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_identity.h"

#include <QFile>

#include <sys/stat.h>

std::optional<FileIdentity> identityOf(const QString &path) {
    struct stat found = {};
    if (stat(QFile::encodeName(path).constData(), &found) != 0 || !S_ISREG(found.st_mode))
        return std::nullopt;
    return FileIdentity{.device = found.st_dev,
                        .node = found.st_ino,
                        .bytes = found.st_size,
                        .seconds = found.st_mtim.tv_sec,
                        .nanoseconds = found.st_mtim.tv_nsec};
}
