// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/app_delegate.h"
#include "app/application.h"
#include "app/strings_table.h"
#include "record/view_record_preview.h"
#include "tests/unit/fake_window_server.h"
#include "ui_MainWindow.h"

#include <QLocale>
#include <QMainWindow>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A picture of one colour.
inline Image plainImage(QSize size, QRgb colour, QImage::Format format = QImage::Format_RGB32) {
    QImage pixels(size, format);
    pixels.fill(colour);
    return Image::fromQImage(pixels);
}

/// The whole controller over a window server without a screen, started, its timers off: a test
/// makes the ticks itself.
class RecordingFixture : public testing::Test {
protected:
    RecordingFixture() : RecordingFixture(QString()) {}

    explicit RecordingFixture(const QString &reason) {
        installTexts();
        auto fake = std::make_unique<FakeWindowServer>();
        server = fake.get();
        server->why = reason;
        server->picture = plainImage({64, 48}, qRgb(10, 20, 30));
        delegate = std::make_unique<AppDelegate>(AppDelegate::Environment{
            .windowServer = std::move(fake), .documentsFolder = documents.path()});
        application().setDelegate(delegate.get());
        delegate->awakeFromNib();
        started = delegate->applicationDidFinishLaunching();
        delegate->stopRecordTimers();
        settle();
    }

    ~RecordingFixture() override {
        delete delegate->shell.window();
        application().setDelegate(nullptr);
        delegate.reset();
    }

    /// Real sentences, with places for their figures.
    static void installTexts() {
        static const bool installed = [] {
            QLocale::setDefault(QLocale(QStringLiteral("en_US")));
            strings_table::install();
            return true;
        }();
        ASSERT_TRUE(installed);
    }

    static Application &application() { return *static_cast<Application *>(qApp); }

    /// Lets everything happen that is on its way.
    static void settle() {
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents();
    }

    std::uint64_t frames() const { return delegate->recording.u_Record_Current_Frame(); }
    QString frameFile(int number) const {
        return QStringLiteral("%1/Pallomar/frame%2.png")
            .arg(documents.path())
            .arg(number, 8, 10, QLatin1Char('0'));
    }
    Ui::MainWindow &ui() { return *delegate->ui; }

    QTemporaryDir documents;
    FakeWindowServer *server = nullptr;
    std::unique_ptr<AppDelegate> delegate;
    bool started = false;
};
