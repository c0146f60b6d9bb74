// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/working_folders.h"

#include "app/app_delegate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace working_folders {

namespace {

/// Digits of a frame number in a file name, at least.
constexpr int frameDigits = 8;

QString inDocuments(const QString &documentsFolder, const char *name) {
    return QDir::cleanPath(documentsFolder + QLatin1Char('/') + QLatin1String(name));
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
    return info.exists() || info.isSymLink() || QDir().mkpath(folder);
}

} // namespace working_folders

void AppDelegate::RemoveAllContentInFolder(const QString &folder) {
    namespace fs = std::filesystem;
    const auto oops = [](const std::string &what) { qWarning("oops: %s", what.c_str()); };
    std::error_code error;
    // The standard library's walk, not QDir: it leaves out neither hidden files nor broken links.
    fs::directory_iterator entries(QFile::encodeName(folder).toStdString(), error);
    if (error) {
        // No folder, no entries; anything else the user's log should know.
        if (error != std::errc::no_such_file_or_directory)
            oops(folder.toStdString() + ": " + error.message());
        return;
    }
    while (entries != fs::directory_iterator()) {
        const fs::path path = entries->path();
        fs::remove_all(path, error);
        if (error)
            oops(path.string() + ": " + error.message());
        entries.increment(error);
        if (error) {
            oops(folder.toStdString() + ": " + error.message());
            return;
        }
    }
}

bool AppDelegate::firstFrameFileExists() const {
    return QFileInfo::exists(working_folders::frameFile(shell.s_Output_Folder(), 0));
}
