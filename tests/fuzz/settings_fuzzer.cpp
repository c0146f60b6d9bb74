// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/settings.h"
#include "tests/fuzz/require.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

/// Where the settings lie, as long as the fuzzer runs.
QString folder() {
    static const QTemporaryDir scratch;
    return scratch.path();
}

/// A name that no settings have been read under, since those are remembered.
QString freshName() {
    static int number = 0;
    return QStringLiteral("settings") + QString::number(++number);
}

} // namespace

/// A settings file of any content is read as a number and can be written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    // Values with a type are the library's own, read by code that takes a few bytes for gigabytes
    // as soon as the file is opened. Nothing of ours writes or reads them.
    const QByteArrayView content(data, static_cast<qsizetype>(size));
    if (content.contains('@') || content.contains('\\'))
        return -1;
    qInstallMessageHandler([](auto, auto &, auto &) {}); // a file that cannot be read is told of
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder());
    QCoreApplication::setOrganizationName(QStringLiteral("fuzz"));
    QCoreApplication::setApplicationName(freshName());
    const QString path = QSettings().fileName();
    REQUIRE(path.startsWith(folder()));
    QDir().mkpath(folder() + QStringLiteral("/fuzz"));
    QFile file(path);
    REQUIRE(file.open(QIODevice::WriteOnly));
    REQUIRE(file.write(content.data(), content.size()) == content.size());
    file.close();

    const std::int64_t before = settings::readShowSelectRegionHowTo();
    REQUIRE(settings::readShowSelectRegionHowTo() == before);
    settings::writeShowSelectRegionHowTo(0);
    REQUIRE(settings::readShowSelectRegionHowTo() == 0);
    QFile::remove(path);
    return 0;
}
