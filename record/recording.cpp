// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "platform/window_server.h"
#include "record/measured_rate.h"
#include "record/window_list.h"
#include "shell/commands.h"
#include "ui_MainWindow.h"

namespace {

constexpr double oneSecond = 1.0;

RecordingClock::TimePoint now() { return std::chrono::steady_clock::now(); }

} // namespace

void AppDelegate::connectRecordControls() {
    const auto onButton = [this](QAbstractButton *button, void (AppDelegate::*action)(QObject *),
                                 Qt::ConnectionType type = Qt::AutoConnection) {
        connect(
            button, &QAbstractButton::clicked, this,
            [this, button, action] { (this->*action)(button); }, type);
    };
    const auto onItem = [this](QAction *item, void (AppDelegate::*action)(),
                               Qt::ConnectionType type = Qt::AutoConnection) {
        connect(item, &QAction::triggered, this, action, type);
    };
    // What runs a dialog is started from the event loop: assistive technology waits for the answer
    // to its press, and would wait until the dialog ends.
    constexpr Qt::ConnectionType later = Qt::QueuedConnection;
    onButton(ui->btnRecordFullScreen, &AppDelegate::OnRecordFullScreen);
    onButton(ui->btnRecordRegion, &AppDelegate::OnRecordRegion, later);
    onButton(ui->btnRecordRecord, &AppDelegate::OnRecordRecord);
    onButton(ui->btnRecordPause, &AppDelegate::OnRecordPause);
    onButton(ui->btnRecordStop, &AppDelegate::OnRecordStop);
    onButton(ui->btnRecordFPS, &AppDelegate::OnRecordFPS, later);
    onButton(ui->btnSaveAgain, &AppDelegate::OnSaveAgain);
    onItem(ui->menuitemActionRecordFullScreen, &AppDelegate::OnMenuActionRecordFullScreen);
    onItem(ui->menuitemActionRecordRegion, &AppDelegate::OnMenuActionRecordRegion, later);
    onItem(ui->menuitemActionRecordRecord, &AppDelegate::OnMenuActionRecordRecord);
    onItem(ui->menuitemActionRecordPause, &AppDelegate::OnMenuActionRecordPause);
    onItem(ui->menuitemActionRecordStop, &AppDelegate::OnMenuActionRecordStop);
    onItem(ui->menuitemActionRecordFPS, &AppDelegate::OnMenuActionRecordFPS, later);
}

void AppDelegate::prepareRecordTab() {
    ui->viewRecordPreview->showReason(windowServer().reason());
    enableCommand(ui->btnRecordRecord, ui->menuitemActionRecordRecord, mayRecord());
    showCaptureMode();
    showRecordingState();
}

bool AppDelegate::mayRecord() { return windowServer().reason().isEmpty() && !isSavingRecording(); }

void AppDelegate::OnRecordRecord(QObject *) {
    if (recording.m_RecordStatus() == RECORD_STATUS_RECORD || !mayRecord())
        return;
    const bool goesOn = recording.m_RecordStatus() == RECORD_STATUS_PAUSE;
    if (!goesOn) {
        if (mustAskFirst([this] { OnRecordRecord(nullptr); }))
            return;
        RemoveAllContentInFolder(shell.s_Output_Folder());
        ui->btnSaveAgain->hide();
        recording.setU_Record_Current_Frame(0);
        keepWholeRecording();
        recording.setI_Actual_FPS_while_Recording(0);
        recording.setU_number_of_seconds(0);
        recording.setI_debug_number_of_view_refresh(0);
        recording.clock = {};
        recording.array_Images.emplace();
        recording.budget = {};
        recording.growth = 0;
        recording.heldBefore = recording.store.bytesHeld();
    }
    enableRecordChoices(false);
    enableRecording(false, true, true);
    recording.setM_RecordStatus(RECORD_STATUS_RECORD);
    recording.clock.run(now());
    if (goesOn && recording.timerdebug1Second)
        recording.timerdebug1Second->goOn();
    else
        restartOneSecondTimer();
    showRecordingState();
}

void AppDelegate::enableRecording(bool record, bool pause, bool stop) {
    enableCommand(ui->btnRecordRecord, ui->menuitemActionRecordRecord, record);
    enableCommand(ui->btnRecordPause, ui->menuitemActionRecordPause, pause);
    enableCommand(ui->btnRecordStop, ui->menuitemActionRecordStop, stop);
}

void AppDelegate::enableRecordChoices(bool enabled) {
    enableCommand(ui->btnRecordFullScreen, ui->menuitemActionRecordFullScreen, enabled);
    enableCommand(ui->btnRecordRegion, ui->menuitemActionRecordRegion, enabled);
    enableCommand(ui->btnRecordFPS, ui->menuitemActionRecordFPS, enabled);
}

void AppDelegate::OnRecordPause(QObject *) {
    recording.setM_RecordStatus(RECORD_STATUS_PAUSE);
    recording.clock.hold(now());
    if (recording.timerdebug1Second)
        recording.timerdebug1Second->hold();
    enableRecording(mayRecord(), false, true);
    showRecordingState();
}

void AppDelegate::OnRecordStop(QObject *) {
    // The store that is being written stays as it is until the last frame has been reported.
    if (isSavingRecording())
        return;
    recording.clock.hold(now());
    enableRecordChoices(true);
    // Not before the save has ended: a new recording empties store and folder.
    enableRecording(false, false, false);
    recording.setM_RecordStatus(RECORD_STATUS_STOP);
    recording.setExactRate(measuredRate(recordingCounts(), recording.u_FPS()));
    recording.store.rest();
    showRecordingState();
    saveRecording();
}

void AppDelegate::recordingSaved() {
    enableCommand(ui->btnRecordRecord, ui->menuitemActionRecordRecord, mayRecord());
}

RecordingCounts AppDelegate::recordingCounts() const {
    return {.storedFrames = recording.u_Record_Current_Frame(),
            .passedSeconds = recording.clock.seconds(now())};
}

void AppDelegate::TimerRefreshVideoRoutine() {
    updateWindowList();
    capture.arrayWindowsMinusHarrowlens.clear();
    for (const WindowEntry &entry : capture.arrayController)
        if (!isOwnWindow(entry))
            capture.arrayWindowsMinusHarrowlens.push_back(entry);
    createMultiWindowShot(capture.arrayWindowsMinusHarrowlens);
    // Drawn at once, not when the window happens to be painted: a recording goes on while nobody
    // sees the window.
    ui->viewRecordPreview->drawFrame();
}

void AppDelegate::TimerDebug1SecondRoutine() {
    if (recording.m_RecordStatus() != RECORD_STATUS_RECORD)
        return;
    recording.setI_Actual_FPS_while_Recording(
        recording.i_Actual_FPS_while_Recording() +
        static_cast<std::int64_t>(recording.i_debug_number_of_view_refresh()));
    recording.setU_number_of_seconds(recording.u_number_of_seconds() + 1);
    recording.setI_debug_number_of_view_refresh(0);
    watchMemory();
}

void AppDelegate::restartCaptureTimer() {
    recording.timerVideoRefresh.reset();
    recording.timerVideoRefresh = std::make_unique<RepeatingTimer>(
        captureInterval(recording.u_FPS()), [this] { TimerRefreshVideoRoutine(); });
}

void AppDelegate::restartOneSecondTimer() {
    recording.timerdebug1Second.reset();
    recording.timerdebug1Second =
        std::make_unique<RepeatingTimer>(oneSecond, [this] { TimerDebug1SecondRoutine(); });
}

void AppDelegate::stopRecordTimers() {
    recording.timerdebug1Second.reset();
    recording.timerVideoRefresh.reset();
}

void AppDelegate::storeFrame() {
    if (recording.m_RecordStatus() != RECORD_STATUS_RECORD)
        return;
    // Before the first grab there is nothing to keep: a file without pixels does not exist.
    if (capture.imageScreenCaptureFinal().isEmpty())
        return;
    if (!recording.array_Images)
        recording.array_Images.emplace();
    auto &frames = *recording.array_Images;
    const Image previous = frames.empty() ? Image() : frames.back();
    frames.push_back(recording.store.keep(capture.imageScreenCaptureFinal(), previous));
    recording.setU_Record_Current_Frame(recording.u_Record_Current_Frame() + 1);
    recording.setI_debug_number_of_view_refresh(recording.i_debug_number_of_view_refresh() + 1);
}
