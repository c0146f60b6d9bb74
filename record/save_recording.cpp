// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/tabs.h"
#include "record/save/frame_saver.h"
#include "shell/commands.h"
#include "shell/tab_view.h"
#include "shell/working_folders.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QDir>

bool AppDelegate::isSavingRecording() const { return frameSaver_ != nullptr; }

void AppDelegate::saveRecording() {
    const std::size_t frames = recording.array_Images ? recording.array_Images->size() : 0;
    surroundings.progress.show(qtTrId("IDD_SAVING_RECORDING"));
    surroundings.progress.setRange(0.0, static_cast<double>(frames));
    surroundings.progress.setValue(0.0);
    if (frames == 0) {
        surroundings.progress.close();
        recordingSaved();
        surroundings.showStatus(qtTrId("IDD_NOTHING_RECORDED"));
        return;
    }
    // Somebody may have taken it away since the start.
    working_folders::ensureFolder(shell.s_Output_Folder());
    frameSaver_ = std::make_unique<FrameSaver>(*recording.array_Images, shell.s_Output_Folder(),
                                               [this](std::uint64_t done) { frameReported(done); });
}

void AppDelegate::OnSaveAgain(QObject *) {
    // Whatever a sheet covers can still be pressed by assistive technology.
    const bool busy = isSavingRecording() || watchedTool_ != nullptr ||
                      recording.m_RecordStatus() != RECORD_STATUS_STOP;
    if (busy || !recording.array_Images || recording.array_Images->empty())
        return;
    if (trim.m_PlayStatus() != PLAY_STATUS_STOP)
        OnCutStop(this);
    // All of it anew: what was written need no longer be there, and takes room meanwhile.
    RemoveAllContentInFolder(shell.s_Output_Folder());
    ui->btnSaveAgain->hide();
    enableCommand(ui->btnRecordRecord, ui->menuitemActionRecordRecord, false);
    saveRecording();
}

void AppDelegate::frameReported(std::uint64_t done) {
    surroundings.progress.setValue(static_cast<double>(done));
    if (done < frameSaver_->count())
        return;
    // Its own report is on the stack.
    FrameSaver *saver = frameSaver_.release();
    saver->deleteLater();
    surroundings.progress.close();
    recordingSaved();
    showSaveResult(*saver);
    if (shell.tabviewMain()->selectedIndex() == tabs::cut)
        tabViewDidSelectTabViewItem(TabView::identifierOf(tabs::cut));
    else
        shell.tabviewMain()->selectTabViewItemAtIndex(tabs::cut);
}

void AppDelegate::showSaveResult(const FrameSaver &saver) {
    if (saver.missing() == 0) {
        noteRecording();
        QString text =
            qtTrId("IDD_RECORDING_SAVED").arg(saver.count()).arg(recording.u_Record_Current_FPS());
        if (fellBehind(recordingCounts(), recording.u_FPS()))
            text = qtTrId("IDD_RECORDING_BEHIND")
                       .arg(saver.count())
                       .arg(recording.u_FPS())
                       .arg(recording.u_Record_Current_FPS());
        surroundings.showStatus(text);
        return;
    }
    const QString text =
        qtTrId("IDD_FRAMES_MISSING")
            .arg(QString::number(saver.missing()), QString::number(saver.count()),
                 QDir::toNativeSeparators(shell.s_Output_Folder()), saver.reason());
    qWarning().noquote() << text;
    surroundings.showStatus(text);
    ui->btnSaveAgain->show();
}
