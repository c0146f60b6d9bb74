// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/start_up.h"

#include "app/accessible_roles.h"
#include "app/app_delegate.h"
#include "app/controls.h"
#include "app/tabs.h"
#include "app/window_place.h"
#include "platform/bundle.h"
#include "platform/screen_source.h"
#include "record/left_recording.h"
#include "record/rate_list.h"
#include "shell/screen_watcher.h"
#include "shell/tab_view.h"
#include "shell/working_folders.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QFontInfo>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>

namespace start_up {

namespace {

constexpr double usualLetters = 13; // pixels: 10 points on a usual screen

/// False when one could not be made; the user has been notified.
bool createWorkingFolders(Surroundings &surroundings, const QString &documentsFolder) {
    ShellFields &shell = surroundings.shell;
    shell.setS_Output_Folder(working_folders::recordingFolder(documentsFolder));
    shell.setS_Export_Folder(working_folders::exportFolder(documentsFolder));
    shell.setS_Pallete_Folder(working_folders::paletteFolder(documentsFolder));
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

/// The window's sizes are made for the letters that most desktops have. Where these are larger, as
/// on GNOME, it grows with them, or texts would be cut in its smallest size; but not beyond the
/// screen.
void fitSizesToLetters(QMainWindow &window, const Ui::MainWindow &ui) {
    const int letters = QFontInfo(QApplication::font()).pixelSize();
    const double scale = std::max(1.0, letters / usualLetters);
    const QSize room = window.screen()->availableSize();
    const QSize least = AppDelegate::windowWillResizeToSize({0, 0}).toSize();
    window.setMinimumSize((least * scale).boundedTo(room).expandedTo(least));
    window.resize((window.size() * scale).boundedTo(room));
    ui.gifCard->setMaximumWidth(qRound(ui.gifCard->maximumWidth() * scale));
    ui.gifCard->setMinimumWidth(qRound(ui.gifCard->minimumWidth() * scale));
}

void showMainWindow(QMainWindow &window) {
    window.setWindowTitle(QStringLiteral("Tovarel"));
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

void makeMainWindow(AppDelegate &controller) {
    installAccessibleRoles();
    auto *window = new QMainWindow; // The process ends with it: see Terminate_App.
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    controller.ui->setupUi(window);
    fitSizesToLetters(*window, *controller.ui);
    controller.shell.setWindow(window);
    controller.shell.setTabviewMain(new TabView(
        *controller.ui->tabBar, *controller.ui->tabStack,
        {.shouldSelect =
             [&controller](const QString &id) {
                 return controller.tabViewShouldSelectTabViewItem(id);
             },
         .didSelect =
             [&controller](const QString &id) { controller.tabViewDidSelectTabViewItem(id); }},
        window));
}

bool run(AppDelegate &controller, Controls &controls, const QString &documentsFolder) {
    ShellFields &shell = controller.shell;
    shell.setS_App_Name(QStringLiteral("Tovarel"));
    controller.texts.load();
    controls.setUp();
    shell.setSffmpegPath(bundle::pathForTool(QStringLiteral("ffmpeg")));
    shell.setSimg2webpPath(bundle::pathForTool(QStringLiteral("img2webp")));
    if (!createWorkingFolders(controller.surroundings, documentsFolder))
        return false;
    const std::optional<RecordingNote> left = left_recording::findAtStart(shell.s_Output_Folder());
    controller.exporter.takeLeftFile();
    working_folders::removeContent(shell.s_Pallete_Folder());
    controller.GetScreenSize();
    controller.regionChooser.start();
    // What a dialog of the desktop decides is not known yet.
    if (!controller.recorder.source().capabilities().asksUser)
        controller.regionChooser.recall();
    controller.trimEditor.keepWholeRecording();
    controller.recorder.start();
    controller.recorder.recall();
    fillRates(*controller.ui->comboGIFFPS, controller.recording.u_FPS());
    shell.tabviewMain()->selectTabViewItemAtIndex(tabs::record);
    controller.ui->submenuitemRecord->setEnabled(true);
    controller.ui->submenuitemCut->setEnabled(false);
    controller.ui->submenuitemGIF->setEnabled(false);
    controls.refresh();
    controller.recorder.restartOneSecondTimer();
    controller.recorder.restartCaptureTimer();
    window_place::recall(*shell.window());
    showMainWindow(*shell.window());
    auto *screens = new ScreenWatcher(&controller);
    shell.setLocaleChangeObserver(
        QObject::connect(screens, &ScreenWatcher::changed, &controller.regionChooser,
                         &RegionChooser::screenParametersDidChange, Qt::QueuedConnection));
    if (left)
        controller.recorder.offerRecording(*left);
    return true;
}

} // namespace start_up
