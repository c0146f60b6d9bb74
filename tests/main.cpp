// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/application.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

// Widgets, timers and sockets need an application object, which must outlive every test. Settings
// and folders of the person who runs the tests stay untouched.
int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    // Nor do they see notifications.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    Application::setApplicationName(QStringLiteral("TovarelTest"));
    Application::setOrganizationName(QStringLiteral("TovarelTest"));
    return RUN_ALL_TESTS();
}
