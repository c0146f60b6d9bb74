// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/working_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

#include <filesystem>
#include <system_error>

namespace working_folders {

namespace fs = std::filesystem;

namespace {

/// Digits of a frame number in a file name, at least.
constexpr int frameDigits = 8;

constexpr mode_t forTheUserAlone = 0700;

QString inDocuments(const QString &documentsFolder, const char *name) {
    return QDir::cleanPath(documentsFolder + QLatin1Char('/') + QLatin1String(name));
}

void oops(const fs::path &path, const std::error_code &error) {
    qWarning("oops: %s: %s", path.c_str(), error.message().c_str());
}

} // namespace

QString recordingFolder(const QString &documentsFolder) {
    return inDocuments(documentsFolder, "Pallomar");
}

QString exportFolder(const QString &documentsFolder) {
    return inDocuments(documentsFolder, "PallomarExport");
}

QString paletteFolder(const QString &documentsFolder) {
    return inDocuments(documentsFolder, "PallomarPallete");
}

QString previousFolder(const QString &recordingFolder) {
    const QString real = QFileInfo(recordingFolder).canonicalFilePath();
    return (real.isEmpty() ? recordingFolder : real) + QStringLiteral("Previous");
}

// Joined by hand, not by QString::arg: a folder's name may hold "%1".
QString frameFile(const QString &recordingFolder, std::uint64_t number) {
    return recordingFolder + QStringLiteral("/frame") +
           QString::number(number).rightJustified(frameDigits, QLatin1Char('0')) +
           QStringLiteral(".png");
}

QString stagedFile(const QString &folder, std::uint64_t number) {
    return folder + QStringLiteral("/image") + QString::number(number) + QStringLiteral(".png");
}

bool ensureFolder(const QString &folder) {
    // A broken link is nothing that can be used, but something of that name: it counts as present.
    const QFileInfo info(folder);
    if (!info.exists() && !info.isSymLink()) {
        // Pictures of somebody's screen: nobody else is to read them, not even for a moment.
        const QString above = info.absolutePath();
        return (QFileInfo::exists(above) || QDir().mkpath(above)) &&
               mkdir(QFile::encodeName(folder).constData(), forTheUserAlone) == 0;
    }
    // One that an earlier version made, or somebody opened to others; a link's target is not ours.
    if (info.isDir() && !info.isSymLink())
        chmod(QFile::encodeName(folder).constData(), forTheUserAlone);
    return true;
}

void removeContent(const fs::path &folder, const QStringList &kept) {
    std::error_code error;
    // The standard library's walk, not QDir: it leaves out neither hidden files nor broken links.
    // Not its remove_all either, which ends at the first entry that cannot be removed.
    fs::directory_iterator entries(folder, error);
    if (error) {
        // No folder, no entries; anything else the user's log should know.
        if (error != std::errc::no_such_file_or_directory)
            oops(folder, error);
        return;
    }
    while (entries != fs::directory_iterator()) {
        const fs::path path = entries->path();
        const bool stays = kept.contains(QFile::decodeName(path.filename().c_str()));
        // A link to a folder is an entry of its own: what it leads to is not ours.
        if (!stays && fs::is_directory(entries->symlink_status(error)))
            removeContent(path);
        if (!stays)
            fs::remove(path, error);
        if (error)
            oops(path, error);
        entries.increment(error);
        if (error) {
            oops(folder, error);
            return;
        }
    }
}

void removeContent(const QString &folder, const QStringList &kept) {
    removeContent(fs::path(QFile::encodeName(folder).toStdString()), kept);
}

} // namespace working_folders
