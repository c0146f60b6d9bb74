// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/app_delegate.h"
#include "app/application.h"
#include "platform/window_server_source.h"
#include "shell/strings_table.h"
#include "shell/working_folders.h"
#include "tests/support/fake_window_server.h"
#include "ui_MainWindow.h"

#include <QLocale>
#include <QMainWindow>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// The whole controller over a window server without a screen, started, its timers off: a test
/// makes the ticks itself. Works in a folder of its own.
class TestController {
public:
    /// `obstacle` is why nothing can be recorded here, `documents` the name of the documents
    /// folder.
    explicit TestController(std::optional<Obstacle> obstacle = {},
                            const QString &documents = QStringLiteral("Documents")) {
        installTexts();
        auto fake = std::make_unique<FakeWindowServer>();
        server = fake.get();
        server->why = obstacle;
        server->picture = plainImage({64, 48}, qRgb(10, 20, 30));
        delegate = std::make_unique<AppDelegate>(AppDelegate::Environment{
            .source = std::make_unique<WindowServerSource>(std::move(fake)),
            .documentsFolder = folder.filePath(documents)});
        application().setDelegate(delegate.get());
        delegate->awakeFromNib();
        EXPECT_TRUE(delegate->applicationDidFinishLaunching());
        delegate->recorder.stopRecordTimers();
        settle();
    }
    ~TestController() {
        delete window();
        application().setDelegate(nullptr);
    }
    TestController(const TestController &) = delete;
    TestController &operator=(const TestController &) = delete;

    /// Real sentences, with places for their figures.
    static void installTexts() {
        static const bool installed = [] {
            QLocale::setDefault(QLocale(QStringLiteral("en_US")));
            strings_table::install();
            return true;
        }();
        ASSERT_TRUE(installed);
    }

    /// Lets everything happen that is on its way.
    static void settle() {
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents();
    }

    static Application &application() { return *static_cast<Application *>(qApp); }
    QMainWindow *window() { return delegate->shell.window(); }
    Ui::MainWindow &ui() { return *delegate->ui; }
    std::uint64_t frames() const { return delegate->recording.u_Record_Current_Frame(); }
    QString frameFile(int number) const {
        return working_folders::frameFile(delegate->shell.s_Output_Folder(),
                                          static_cast<std::uint64_t>(number));
    }

    QTemporaryDir folder;
    FakeWindowServer *server = nullptr;
    std::unique_ptr<AppDelegate> delegate;
};

class ControllerFixture : public testing::Test, protected TestController {
protected:
    using TestController::TestController;
};
