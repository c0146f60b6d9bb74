// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/tabs.h"

#include "app/app_delegate.h"
#include "shell/tab_view.h"
#include "ui_MainWindow.h"

namespace {

const QString recordTab = TabView::identifierOf(tabs::record);
const QString cutTab = TabView::identifierOf(tabs::cut);
const QString gifTab = TabView::identifierOf(tabs::gif);

} // namespace

bool AppDelegate::tabViewShouldSelectTabViewItem(const QString &identifier) const {
    const bool recordStopped = recording.m_RecordStatus() == RECORD_STATUS_STOP;
    const bool playStopped = trim.m_PlayStatus() == PLAY_STATUS_STOP;
    if (identifier == recordTab)
        return playStopped;
    if (identifier == cutTab)
        return recordStopped;
    return recordStopped && playStopped;
}

void AppDelegate::tabViewDidSelectTabViewItem(const QString &identifier) {
    if (identifier == recordTab) {
        restartOneSecondTimer();
        restartCaptureTimer();
    } else {
        stopRecordTimers();
    }
    if (identifier == cutTab) {
        const bool exists = surroundings.firstFrameFileExists();
        enablePlayback(exists, false, false);
        // The exports read the range, and nothing may ever be painted (a minimised window).
        if (exists)
            updateTrimmedRange();
    }
    if (identifier == gifTab)
        resetGIFOptions();
    ui->submenuitemRecord->setEnabled(identifier == recordTab);
    ui->submenuitemCut->setEnabled(identifier == cutTab);
    ui->submenuitemGIF->setEnabled(identifier == gifTab);
}

void AppDelegate::OnMenuTabRecord() { shell.tabviewMain()->selectTabViewItemAtIndex(tabs::record); }
void AppDelegate::OnMenuTabCut() { shell.tabviewMain()->selectTabViewItemAtIndex(tabs::cut); }
void AppDelegate::OnMenuTabGIF() { shell.tabviewMain()->selectTabViewItemAtIndex(tabs::gif); }
