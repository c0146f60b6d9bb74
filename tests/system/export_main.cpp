// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/application.h"
#include "app/strings_table.h"
#include "app/termination_notice.h"
#include "export/tool_run.h"
#include "platform/null/null_window_server.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

/// A second process for the tests of a program that ends while a tool runs: runs the tool named on
/// the command line, with the event loop at rest.
int waitForTool(const QString &tool) {
    AppDelegate controller({.windowServer = std::make_unique<NullWindowServer>(QString()),
                            .documentsFolder = QString()});
    const TerminationNotice notice([&controller] { controller.applicationWillTerminate(); });
    controller.RunToolReadAllOutput(tool, {});
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    // Texts and numbers of one language; nothing of the person who runs the tests is touched.
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("LANGUAGE", "en");
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    Application::setApplicationName(QStringLiteral("TovarelTest"));
    Application::setOrganizationName(QStringLiteral("TovarelTest"));
    strings_table::install();
    if (argc == 3 && QByteArrayView(argv[1]) == "--wait-for-tool")
        return waitForTool(QString::fromLocal8Bit(argv[2]));
    return RUN_ALL_TESTS();
}
