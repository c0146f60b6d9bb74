// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/tabs.h"

#include "app/app_delegate.h"
#include "shell/tab_view.h"
#include "ui_MainWindow.h"

namespace tabs {

namespace {

const QString recordTab = TabView::identifierOf(record);
const QString cutTab = TabView::identifierOf(cut);
const QString gifTab = TabView::identifierOf(gif);

} // namespace

bool mayEnter(const QString &identifier, RecordStatus recording, PlayStatus playing) {
    const bool recordStopped = recording == RECORD_STATUS_STOP;
    const bool playStopped = playing == PLAY_STATUS_STOP;
    if (identifier == recordTab)
        return playStopped;
    if (identifier == cutTab)
        return recordStopped;
    return recordStopped && playStopped;
}

void entered(const QString &identifier, AppDelegate &controller) {
    if (identifier == recordTab) {
        controller.recorder.restartOneSecondTimer();
        controller.recorder.restartCaptureTimer();
        controller.recorder.reopenSource();
    } else {
        controller.recorder.closeSource();
        controller.recorder.stopRecordTimers();
    }
    if (identifier == cutTab)
        controller.trimEditor.enter();
    if (identifier == gifTab) {
        controller.exportOptions->resetGIFOptions();
        // How many frames were recorded is no news beside how many are kept.
        if (!controller.recorder.hasMissingFrames() && !controller.exporter.hasUnsavedResult())
            controller.surroundings.showStatus({});
    }
    const Ui::MainWindow &ui = *controller.ui;
    ui.submenuitemRecord->setEnabled(identifier == recordTab);
    ui.submenuitemCut->setEnabled(identifier == cutTab);
    ui.submenuitemGIF->setEnabled(identifier == gifTab);
}

} // namespace tabs
