// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/accessible_roles.h"
#include "app/app_delegate.h"
#include "app/tabs.h"
#include "platform/bundle.h"
#include "record/left_recording.h"
#include "record/rate_list.h"
#include "shell/commands.h"
#include "shell/screen_watcher.h"
#include "shell/settings.h"
#include "shell/tab_view.h"
#include "shell/working_folders.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QMainWindow>
#include <QTextDocument>

#include <algorithm>

namespace {

constexpr double smallestWidth = 556;  // points
constexpr double smallestHeight = 425; // points

} // namespace

void AppDelegate::awakeFromNib() {
    installAccessibleRoles();
    auto *mainWindow = new QMainWindow; // The process ends with it: see Terminate_App.
    mainWindow->setAttribute(Qt::WA_DeleteOnClose, false);
    ui->setupUi(mainWindow);
    shell.setWindow(mainWindow);
    shell.setTabviewMain(new TabView(
        *ui->tabBar, *ui->tabStack,
        {.shouldSelect = [this](const QString &id) { return tabViewShouldSelectTabViewItem(id); },
         .didSelect = [this](const QString &id) { tabViewDidSelectTabViewItem(id); }},
        mainWindow));
    capture.setListOptions(1);
    capture.setImageOptions(0);
    capture.setImageBounds(std::nullopt);
    mainWindow->setMinimumSize(windowWillResizeToSize({0, 0}).toSize());
    mainWindow->installEventFilter(this);
    applyIcons();
    connectShellControls();
    connectRecordControls();
    connectTrimControls();
    connectExportControls();
}

void AppDelegate::connectShellControls() {
    surroundings.progress.hangFrom(*ui->tabBar);
    connect(&surroundings.progress, &ProgressSheet::parentCloseRequested, this,
            &AppDelegate::windowWillClose);
    connect(&surroundings.progress, &ProgressSheet::cancelled, this, &AppDelegate::cancelExport);
    connect(&surroundings, &Surroundings::statusChanged, ui->labelStatus,
            [label = ui->labelStatus](const QString &text) {
                label->setText(text);
                // A path may look like markup, which a tip would follow; the label itself is set
                // to plain text.
                label->setToolTip(text.isEmpty() ? text : Qt::convertFromPlainText(text));
            });
    const auto on = [this](QAction *item, void (AppDelegate::*action)()) {
        connect(item, &QAction::triggered, this, action);
    };
    on(ui->menuitemAbout, &AppDelegate::OnMenuAbout);
    on(ui->menuitemQuit, &AppDelegate::OnMenuQuit);
    on(ui->menuitemTabRecord, &AppDelegate::OnMenuTabRecord);
    on(ui->menuitemTabCut, &AppDelegate::OnMenuTabCut);
    on(ui->menuitemTabGIF, &AppDelegate::OnMenuTabGIF);
    on(ui->menuitemHelp, &AppDelegate::OnMenuHelp);
    on(ui->menuitemAppHomePage, &AppDelegate::OnMenuHelpAppHomePage);
    on(ui->menuitemCompanyHomePage, &AppDelegate::OnMenuHelpCompanyHomePage);
    on(ui->menuitemPrivacyPolicy, &AppDelegate::OnMenuHelpPrivacyPolicy);
    on(ui->menuitemSubmitTicket, &AppDelegate::OnMenuHelpSubmitTicket);
}

bool AppDelegate::applicationDidFinishLaunching() {
    shell.setS_App_Name(QStringLiteral("Tovarel"));
    texts.load();
    applyTexts();
    recording.setU_FPS(defaultFramesPerSecond);
    shell.setSffmpegPath(bundle::pathForTool(QStringLiteral("ffmpeg")));
    shell.setSimg2webpPath(bundle::pathForTool(QStringLiteral("img2webp")));
    if (!createWorkingFolders())
        return false;
    const std::optional<RecordingNote> left = left_recording::find(shell.s_Output_Folder());
    if (!left)
        RemoveAllContentInFolder(shell.s_Output_Folder());
    RemoveAllContentInFolder(shell.s_Export_Folder());
    RemoveAllContentInFolder(shell.s_Pallete_Folder());
    surroundings.updateScreen();
    region.setRect_Screen_Region(shell.frame_Screen());
    capture.arrayController.clear();
    capture.arrayWindowsMinusHarrowlens.clear();
    region.arrayScreenPointSquare.clear();
    region.setB_Show_Select_Region_How_To(settings::readShowSelectRegionHowTo());
    fillRates(*ui->comboGIFFPS, recording.u_FPS());
    capture.setImgScreenCapture({});
    capture.setImageScreenCaptureFinal({});
    enableRecordChoices(true);
    enableRecording(true, false, false);
    recording.setM_RecordStatus(RECORD_STATUS_STOP);
    keepWholeRecording();
    trim.setM_PlayStatus(PLAY_STATUS_STOP);
    shell.tabviewMain()->selectTabViewItemAtIndex(tabs::record);
    ui->submenuitemRecord->setEnabled(true);
    ui->submenuitemCut->setEnabled(false);
    ui->submenuitemGIF->setEnabled(false);
    recording.setI_debug_number_of_view_refresh(0);
    prepareRecordTab();
    restartOneSecondTimer();
    restartCaptureTimer();
    shell.window()->setWindowTitle(QStringLiteral("Tovarel"));
    shell.window()->show();
    shell.window()->raise();
    shell.window()->activateWindow();
    region.setPFullScreen(nullptr);
    auto *screens = new ScreenWatcher(this);
    shell.setLocaleChangeObserver(connect(screens, &ScreenWatcher::changed, this,
                                          &AppDelegate::screenParametersDidChange,
                                          Qt::QueuedConnection));
    if (left)
        offerRecording(*left);
    return true;
}

bool AppDelegate::createWorkingFolders() {
    shell.setS_Output_Folder(working_folders::recordingFolder(documentsFolder_));
    shell.setS_Export_Folder(working_folders::exportFolder(documentsFolder_));
    shell.setS_Pallete_Folder(working_folders::paletteFolder(documentsFolder_));
    const struct {
        const QString &path;
        const char *failure;
    } folders[] = {
        {shell.s_Output_Folder(), "Error #0008. Application will exit."},
        {shell.s_Export_Folder(), "Error #0009. Application will exit."},
        {shell.s_Pallete_Folder(), "Error #0010. Application will exit."},
    };
    for (const auto &folder : folders) {
        if (working_folders::ensureFolder(folder.path))
            continue;
        surroundings.alerts.run(AlertKind::Error, QString::fromLatin1(folder.failure));
        return false;
    }
    return true;
}

QSizeF AppDelegate::windowWillResizeToSize(QSizeF proposed) {
    return {std::max(proposed.width(), smallestWidth), std::max(proposed.height(), smallestHeight)};
}
