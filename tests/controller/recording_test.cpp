// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/window_fps.h"
#include "shell/number_text.h"
#include "shell/tab_view.h"
#include "shell/window_progress.h"
#include "tests/controller/controller_fixture.h"
#include "tests/support/files.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

class Recording : public ControllerFixture {
protected:
    using ControllerFixture::ControllerFixture;

    /// Full screen, Region, Record, Pause, Stop, frame rate, as 0 and 1; buttons and menu items
    /// must agree.
    std::string enabled() {
        const std::pair<QAbstractButton *, QAction *> controls[] = {
            {ui().btnRecordFullScreen, ui().menuitemActionRecordFullScreen},
            {ui().btnRecordRegion, ui().menuitemActionRecordRegion},
            {ui().btnRecordRecord, ui().menuitemActionRecordRecord},
            {ui().btnRecordPause, ui().menuitemActionRecordPause},
            {ui().btnRecordStop, ui().menuitemActionRecordStop},
            {ui().btnRecordFPS, ui().menuitemActionRecordFPS}};
        std::string states;
        for (const auto &[button, item] : controls) {
            EXPECT_EQ(button->isEnabled(), item->isEnabled()) << qPrintable(button->objectName());
            states += button->isEnabled() ? '1' : '0';
        }
        return states;
    }

    void tick(int times) {
        for (int i = 0; i < times; ++i)
            delegate->TimerRefreshVideoRoutine();
    }

    bool waitForSave() {
        return QTest::qWaitFor([this] { return !delegate->recorder.isSavingRecording(); }, 10'000);
    }
};

TEST_F(Recording, countsDownAndCanBeKeptFromBeginning) {
    delegate->recorder.setDelay(1);
    const std::function<void()> ways[] = {
        [this] { ui().btnRecordStop->click(); },
        [this] { QTest::keyClick(window(), Qt::Key_Escape); },
        [this] { delegate->OnMenuTabCut(); },
    };
    window()->activateWindow();
    for (const auto &cancel : ways) {
        ui().menuitemActionRecordRecord->trigger();
        EXPECT_EQ(enabled(), "000010");
        EXPECT_EQ(window()->windowTitle(), QStringLiteral("1 – Tovarel"));
        tick(2);
        cancel();
        EXPECT_FALSE(delegate->recorder.isCountingDown());
        EXPECT_EQ(window()->windowTitle(), QStringLiteral("Tovarel"));
    }
    delegate->OnMenuTabRecord();
    EXPECT_EQ(enabled(), "111001");
    EXPECT_FALSE(delegate->recording.array_Images) << "nothing of a countdown is kept";
    ui().btnRecordRecord->click();
    ui().btnRecordRecord->click();
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return delegate->recording.m_RecordStatus() == RECORD_STATUS_RECORD; }, 5000));
    ui().btnRecordPause->click();
    ui().btnRecordRecord->click();
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_RECORD) << "goes on at once";
    delegate->recorder.setDelay(0);
}

TEST_F(Recording, enablesItsControlsByTheStateAndSavesWhatWasStored) {
    EXPECT_EQ(enabled(), "111001");
    tick(2);
    EXPECT_FALSE(delegate->recording.array_Images);
    ui().btnRecordRecord->click();
    EXPECT_EQ(enabled(), "000110");
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_RECORD);
    EXPECT_TRUE(ui().recordingIndicator->isVisible());
    tick(3);
    ui().menuitemActionRecordPause->trigger();
    EXPECT_EQ(enabled(), "001010");
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_PAUSE);
    tick(4);
    EXPECT_EQ(frames(), 3u);
    ui().btnRecordRecord->click();
    tick(1);
    ui().btnRecordStop->click();
    // Record stays off until the last frame is on disk.
    EXPECT_EQ(enabled(), "110001");
    EXPECT_TRUE(delegate->recorder.isSavingRecording());
    ASSERT_NE(delegate->windowProgress(), nullptr);
    EXPECT_EQ(delegate->windowProgress()->maxValue(), 4.0);
    delegate->OnRecordRecord(nullptr);
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_STOP);
    ASSERT_TRUE(waitForSave());
    EXPECT_EQ(enabled(), "111001");
    EXPECT_FALSE(ui().recordingIndicator->isVisible());
    EXPECT_EQ(delegate->windowProgress(), nullptr);
    EXPECT_EQ(delegate->shell.tabviewMain()->selectedIndex(), 1);
    EXPECT_EQ(delegate->recording.array_Images->size(), 4u);
    EXPECT_TRUE(QFile::exists(frameFile(3)));
    EXPECT_FALSE(QFile::exists(frameFile(4)));
}

TEST_F(Recording, countsFramesPerSecondAcrossPausesFromItsStart) {
    tick(3); // Before the recording: not a part of it.
    delegate->OnRecordRecord(nullptr);
    EXPECT_EQ(delegate->recording.i_debug_number_of_view_refresh(), 0u);
    const RepeatingTimer *timer = delegate->recording.timerdebug1Second.get();
    ASSERT_NE(timer, nullptr) << "the one-second timer starts with the recording";
    tick(5);
    delegate->TimerDebug1SecondRoutine();
    delegate->OnRecordPause(nullptr);
    delegate->TimerDebug1SecondRoutine(); // Does not count.
    delegate->OnRecordRecord(nullptr);
    delegate->OnRecordRecord(nullptr); // Does nothing at all.
    EXPECT_EQ(delegate->recording.timerdebug1Second.get(), timer) << "held, not started again";
    tick(6);
    delegate->TimerDebug1SecondRoutine();
    tick(2);
    EXPECT_EQ(delegate->recording.i_Actual_FPS_while_Recording(), 11);
    EXPECT_EQ(delegate->recording.u_number_of_seconds(), 2u);
    EXPECT_EQ(frames(), 13u);
    delegate->OnRecordStop(nullptr);
    ASSERT_TRUE(waitForSave());

    delegate->trim.setF_Cut_Percent_Maior(50.0f);
    delegate->OnRecordRecord(nullptr);
    EXPECT_EQ(delegate->trim.f_Cut_Percent_Maior(), 100.0f) << "a new one is kept whole";
    EXPECT_FALSE(QFile::exists(frameFile(0)));
    EXPECT_EQ(frames(), 0u);
    EXPECT_TRUE(delegate->recording.array_Images->empty());
    EXPECT_EQ(delegate->recording.u_number_of_seconds(), 0u);
    EXPECT_EQ(delegate->recording.i_debug_number_of_view_refresh(), 0u);
}

TEST_F(Recording, hasTheRateThatItsOwnClockMeasuresAndLeavesTheChosenOneAlone) {
    delegate->recording.setU_FPS(60);
    const auto record = [this](int count, std::chrono::duration<double> length) {
        delegate->OnRecordRecord(nullptr);
        tick(count);
        // As if it had begun earlier.
        delegate->recording.clock = {};
        delegate->recording.clock.run(
            std::chrono::steady_clock::now() -
            std::chrono::duration_cast<std::chrono::steady_clock::duration>(length));
        delegate->OnRecordStop(nullptr);
        EXPECT_TRUE(waitForSave());
        EXPECT_EQ(delegate->recording.u_FPS(), 60u);
        delegate->OnMenuTabRecord();
        delegate->recorder.stopRecordTimers();
    };
    record(86, std::chrono::seconds(2));
    EXPECT_EQ(delegate->recording.u_Record_Current_FPS(), 43u);
    EXPECT_NEAR(delegate->recording.exactRate(), 43.0, 0.4);
    const auto rate = [this] { return number_text::rate(delegate->recording.exactRate()); };
    EXPECT_EQ(ui().labelStatus->text(), qtTrId("IDD_RECORDING_BEHIND").arg(86).arg(60).arg(rate()));
    record(120, std::chrono::seconds(2));
    EXPECT_EQ(ui().labelStatus->text(), qtTrId("IDD_RECORDING_SAVED").arg(120).arg(rate()));
    // Too short to be measured: it is taken to have had the rate that was chosen.
    record(3, std::chrono::milliseconds(300));
    EXPECT_EQ(delegate->recording.exactRate(), 60.0);
    EXPECT_EQ(ui().labelStatus->text(), qtTrId("IDD_RECORDING_SAVED").arg(3).arg(60));
}

TEST_F(Recording, withoutAFrameSaysSoAndStays) {
    server->picture.reset(); // What has no pixels is no frame.
    delegate->OnRecordRecord(nullptr);
    tick(3);
    EXPECT_EQ(frames(), 0u);
    delegate->OnRecordStop(nullptr);
    EXPECT_FALSE(delegate->recorder.isSavingRecording());
    EXPECT_EQ(delegate->windowProgress(), nullptr);
    EXPECT_EQ(delegate->shell.tabviewMain()->selectedIndex(), 0);
    EXPECT_EQ(ui().labelStatus->text(), qtTrId("IDD_NOTHING_RECORDED"));
    EXPECT_EQ(enabled(), "111001");
    EXPECT_EQ(delegate->recording.u_FPS(), defaultFramesPerSecond);
    EXPECT_EQ(delegate->recording.u_Record_Current_FPS(), defaultFramesPerSecond);
}

TEST_F(Recording, savesTheVeryFramesAgainWhenSomethingStoodInTheWay) {
    delegate->OnRecordRecord(nullptr);
    for (int i = 0; i < 4; ++i) {
        server->picture = plainImage({64, 48}, qRgb(i, i, i));
        tick(1);
    }
    // A folder in a frame's place cannot be replaced by a file.
    ASSERT_TRUE(QDir().mkpath(frameFile(2)));
    delegate->OnRecordStop(nullptr);
    ASSERT_TRUE(waitForSave());
    EXPECT_EQ(ui().labelStatus->text(),
              qtTrId("IDD_FRAMES_MISSING", 4)
                  .arg(QStringLiteral("1"), delegate->shell.s_Output_Folder(),
                       QString::fromLocal8Bit(strerror(EISDIR))));
    ui().btnSaveAgain->click();
    ASSERT_TRUE(waitForSave());
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(QImage(frameFile(i)).pixel(5, 5), qRgb(i, i, i)) << i;
}

TEST_F(Recording, saysAgainOnlyWhatHasChangedOfItsArea) {
    QSignalSpy modes(&delegate->recorder, &Recorder::captureModeChanged);
    tick(3);
    EXPECT_EQ(modes.count(), 0);
    delegate->region.setRect_Screen_Region({1, 2, 20, 10});
    delegate->region.setScreenOfRegion(coordinates::Screen{.height = 48});
    delegate->region.setI_Type_Screen_Capture(CAPTURE_REGION);
    tick(3);
    EXPECT_EQ(modes.count(), 1);
    EXPECT_EQ(delegate->recorder.captureMode().area, QRect(1, 36, 20, 10));
    // The place follows what it depends on, also when only that has changed.
    delegate->region.setRect_Screen_Region({1, 3, 20, 10});
    EXPECT_EQ(delegate->regionChooser.place().inGrab, QRect(1, 35, 20, 10));
}

TEST_F(Recording, isNotLostWhereAFileStandsInTheFoldersPlace) {
    delegate->OnRecordRecord(nullptr);
    tick(3);
    const QString frameFolder = delegate->shell.s_Output_Folder();
    ASSERT_TRUE(QDir(frameFolder).removeRecursively());
    put(frameFolder, "in the way");
    delegate->OnRecordStop(nullptr);
    ASSERT_TRUE(waitForSave());
    EXPECT_EQ(ui().labelStatus->text(), qtTrId("IDD_FRAMES_MISSING", 3)
                                            .arg(QStringLiteral("3"), frameFolder,
                                                 QString::fromLocal8Bit(strerror(ENOTDIR))));
    ASSERT_TRUE(QFile::remove(frameFolder));
    ui().btnSaveAgain->click();
    ASSERT_TRUE(waitForSave());
    EXPECT_TRUE(QFile::exists(frameFile(2)));
}

class WithoutAScreen : public Recording {
protected:
    WithoutAScreen() : Recording(Obstacle::NoComposite) {}
};

TEST_F(WithoutAScreen, theReasonStandsInThePreviewsPlaceAndRecordIsOff) {
    EXPECT_EQ(enabled(), "110001");
    const auto *reason = ui().viewRecordPreview->findChild<QLabel *>(QStringLiteral("labelReason"));
    ASSERT_NE(reason, nullptr);
    EXPECT_TRUE(reason->isVisible());
    EXPECT_EQ(reason->text(), qtTrId("IDD_REASON_NO_COMPOSITE"));
    delegate->OnRecordRecord(nullptr); // A way around the controls.
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_STOP);
}

TEST_F(Recording, theCaptureTimerRunsAtTheRateChosenInTheDialogAndOnlyAfterOK) {
    delegate->recorder.restartCaptureTimer();
    EXPECT_EQ(delegate->recording.timerVideoRefresh->interval(), 0.06666667014360428);
    const RepeatingTimer *timer = delegate->recording.timerVideoRefresh.get();
    const auto during = [this](auto action) {
        QTimer::singleShot(0, delegate.get(), [action] {
            action(*qobject_cast<Window_FPS *>(QApplication::activeModalWidget()));
        });
        delegate->OnRecordFPS(nullptr);
    };
    during([](Window_FPS &dialog) {
        EXPECT_EQ(dialog.comboScreenFPS()->count(), 60);
        EXPECT_EQ(dialog.comboScreenFPS()->currentText(), QStringLiteral("15"));
        EXPECT_FALSE(dialog.comboScreenFPS()->isEditable());
        dialog.comboScreenFPS()->setCurrentIndex(59);
        dialog.OnCancel(nullptr);
    });
    during([](Window_FPS &dialog) {
        dialog.comboScreenFPS()->setCurrentIndex(59);
        dialog.close();
    });
    EXPECT_EQ(delegate->recording.u_FPS(), defaultFramesPerSecond);
    EXPECT_EQ(delegate->recording.timerVideoRefresh.get(), timer);
    during([](Window_FPS &dialog) {
        dialog.comboScreenFPS()->setCurrentIndex(59);
        dialog.OnOK(nullptr);
    });
    EXPECT_EQ(delegate->recording.u_FPS(), 60u);
    EXPECT_EQ(delegate->recording.timerVideoRefresh->interval(), static_cast<double>(1.0f / 60.0f));
    EXPECT_EQ(ui().labelCaptureRate->text(), qtTrId("IDD_CAPTURE_RATE").arg(60)) << "at once";
    delegate->recording.setU_FPS(77);
    during([](Window_FPS &dialog) {
        EXPECT_EQ(dialog.comboScreenFPS()->currentText(), QStringLiteral("1"));
        dialog.OnCancel(nullptr);
    });
}

TEST_F(Recording, theSheetShowsFractionsAndIgnoresWhatWouldDismissIt) {
    ProgressSheet &progress = delegate->surroundings.progress;
    progress.show(QStringLiteral("Busy"));
    Window_Progress *sheet = delegate->windowProgress();
    const auto share = [&](double value) {
        progress.setValue(value);
        return sheet->progressBar()->value() / static_cast<double>(sheet->progressBar()->maximum());
    };
    EXPECT_EQ(share(12.5), 0.125);
    for (const double notFinite : {std::nan(""), HUGE_VAL, -HUGE_VAL})
        EXPECT_EQ(share(notFinite), 0.125);
    EXPECT_EQ(share(130.0), 1.0);
    EXPECT_EQ(share(-1.0), 0.0);
    progress.setRange(0.0, 40.0);
    EXPECT_EQ(share(10.0), 0.25);

    sheet->close();
    sheet->reject();
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_TRUE(sheet->isVisible());
    progress.close();
    EXPECT_FALSE(sheet->isVisible());
    progress.show(QStringLiteral("Again"));
    EXPECT_EQ(delegate->windowProgress()->maxValue(), 100.0) << "nothing of the first carries over";
    progress.close();
}

TEST_F(Recording, isPausedForWantOfMemoryWithTheReasonAndLosesNothing) {
    MemoryState memory{1000000, 500000};
    delegate->recording.memory = [&memory] { return std::optional(memory); };
    delegate->OnRecordRecord(nullptr);
    delegate->TimerRefreshVideoRoutine();
    delegate->TimerDebug1SecondRoutine();
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_RECORD);
    const std::size_t frames = delegate->recording.array_Images->size();

    memory.available = 90000;
    delegate->TimerDebug1SecondRoutine();
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_PAUSE);
    EXPECT_TRUE(delegate->ui->labelStatus->text().startsWith(
        qtTrId("IDD_PAUSED_FOR_MEMORY").section(QLatin1Char('%'), 0, 0)))
        << qPrintable(delegate->ui->labelStatus->text());
    EXPECT_EQ(delegate->recording.array_Images->size(), frames);

    delegate->OnRecordRecord(nullptr);
    delegate->TimerDebug1SecondRoutine();
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_RECORD) << "the user insists";
    memory.available = 40000;
    delegate->TimerDebug1SecondRoutine();
    EXPECT_EQ(delegate->recording.m_RecordStatus(), RECORD_STATUS_PAUSE);
    EXPECT_EQ(delegate->recording.array_Images->size(), frames);
}
