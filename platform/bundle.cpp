// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/bundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace bundle {

QString dataFolder(const QString &executableFolder) {
    return QDir::cleanPath(executableFolder + QStringLiteral("/../" TOVAREL_DATA_DIR));
}

QString pathForTool(const QString &name) {
    const QString ours =
        dataFolder(QCoreApplication::applicationDirPath()) + QLatin1Char('/') + name;
    if (const QFileInfo info(ours); info.isFile() || info.isSymLink())
        return ours;
    return QStandardPaths::findExecutable(name);
}

QString pathForHelp(const QString &page) {
    const QString executableFolder = QCoreApplication::applicationDirPath();
    const QString relative = QStringLiteral("/help/") + page;
    const QString installed = dataFolder(executableFolder) + relative;
    return QFileInfo::exists(installed) ? installed : executableFolder + relative;
}

} // namespace bundle
