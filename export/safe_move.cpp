// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/safe_move.h"

#include "export/log.h"
#include "shell/file_calls.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <span>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t blockSize = 1 << 20; // bytes per read; large enough for a slow network share
constexpr int nameAttempts = 16;           // a collision of random names is another's doing

/// A file descriptor that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int get() const { return number_; }
    /// False when the file system reports only now that something was not written.
    bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

std::optional<QString> systemReason() { return qt_error_string(errno); }

/// Brings a file's or folder's content to the disk. File systems that cannot are no failure.
bool sync(int descriptor) {
    return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

bool copyContent(int from, int to) {
    std::vector<std::uint8_t> block(blockSize);
    for (;;) {
        const ssize_t size = read(from, block.data(), block.size());
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0)
            return size == 0;
        const std::span<const std::uint8_t> part(block.data(), static_cast<std::size_t>(size));
        if (const int error = writeAll(to, {&part, 1}); error != 0) {
            errno = error;
            return false;
        }
    }
}

/// Makes the folder remember a new name. The name is in place by then: a folder that cannot be
/// synchronised takes nothing of that back.
void syncFolder(const QByteArray &folder) {
    const Descriptor directory(open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.get() >= 0)
        sync(directory.get());
}

/// Gives a file another name in one step. False with the reason in `errno`; EEXIST where something
/// has that name and is to be kept.
bool renameTo(const QByteArray &from, const QByteArray &to, Existing existing) {
    if (existing == Existing::Replace)
        return std::rename(from.constData(), to.constData()) == 0;
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // Some network file systems know only one of these ways.
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    if (link(from.constData(), to.constData()) == 0)
        return unlink(from.constData()) == 0;
    if (errno != EPERM && errno != EOPNOTSUPP)
        return false;
    // Nobody else takes a name for a new one that is there already: what is replaced is ours.
    const Descriptor reserved(
        open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    return reserved.get() >= 0 && std::rename(from.constData(), to.constData()) == 0;
}

/// Writes the content of `from` into a new file of an unguessable name in `folder` and gives that
/// the target's name.
std::optional<QString> copyOver(int from, const QByteArray &target, const QByteArray &folder,
                                Existing existing) {
    QByteArray name;
    int created = -1;
    for (int attempt = 0; attempt < nameAttempts && created < 0; ++attempt) {
        const QByteArray random = QByteArray::number(QRandomGenerator::system()->generate64(), 16)
                                      .rightJustified(16, '0');
        name = folder + "/.tovarel-" + random;
        created =
            open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (created < 0 && errno != EEXIST)
            return systemReason();
    }
    if (created < 0)
        return systemReason();
    Descriptor to(created);
    const bool complete = copyContent(from, to.get()) && sync(to.get()) && to.close();
    if (!complete || !renameTo(name, target, existing)) {
        const std::optional<QString> failure = systemReason();
        unlink(name.constData());
        return failure;
    }
    syncFolder(folder);
    return std::nullopt;
}

/// What forbids `target` to be replaced, if anything.
std::optional<QString> targetProblem(const QByteArray &target, const struct stat &source) {
    struct stat found = {};
    if (stat(target.constData(), &found) != 0)
        return std::nullopt; // nothing, or a link that leads nowhere; opening tells the rest
    if (S_ISDIR(found.st_mode))
        return qtTrId("IDD_MOVE_IS_FOLDER");
    if (!S_ISREG(found.st_mode))
        return qtTrId("IDD_MOVE_NOT_A_FILE");
    if (found.st_dev == source.st_dev && found.st_ino == source.st_ino)
        return qtTrId("IDD_MOVE_SAME_FILE");
    return std::nullopt;
}

/// What a new file of the user's is open to. The mask can only be read by setting it; what another
/// thread makes in between is for the user alone.
mode_t usualMode() {
    const mode_t mask = umask(077);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

std::optional<QString> safeMove(const QString &source, const QString &target, Existing existing) {
    const QByteArray from = QFile::encodeName(source);
    const QByteArray to = QFile::encodeName(target);
    const QByteArray folder = QFile::encodeName(QFileInfo(target).absolutePath());
    const Descriptor content(open(from.constData(), O_RDONLY | O_CLOEXEC));
    struct stat status = {};
    if (content.get() < 0 || fstat(content.get(), &status) != 0)
        return systemReason();
    if (const std::optional<QString> problem = targetProblem(to, status))
        return problem;
    // A working file is for the user alone. File systems without modes refuse; nothing is lost.
    if (fchmod(content.get(), usualMode()) != 0)
        qCWarning(logExport, "oops: %s: %s", from.constData(), qPrintable(qt_error_string(errno)));
    if (!sync(content.get()))
        return systemReason();
    if (renameTo(from, to, existing)) {
        syncFolder(folder);
        return std::nullopt;
    }
    if (errno != EXDEV)
        return systemReason();
    const std::optional<QString> failure = copyOver(content.get(), to, folder, existing);
    // The result is in its place: a source that cannot be removed is only left over.
    if (!failure && unlink(from.constData()) != 0)
        qCWarning(logExport, "oops: %s: %s", from.constData(), qPrintable(qt_error_string(errno)));
    return failure;
}
