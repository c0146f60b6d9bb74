// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

#include "app/about.h"
#include "app/controls.h"
#include "app/desktop_keys.h"
#include "app/help.h"
#include "app/start_up.h"
#include "app/tabs.h"
#include "app/window_place.h"
#include "export/file_card.h"
#include "export/progress_parser.h"
#include "export/tool_run.h"
#include "platform/screen_source.h"
#include "shell/settings.h"
#include "shell/tab_view.h"
#include "shell/termination_notice.h"
#include "shell/working_folders.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMainWindow>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr double smallestWidth = 556;  // points
constexpr double smallestHeight = 425; // points

} // namespace

AppDelegate::AppDelegate(Environment environment)
    : ui(std::make_unique<Ui::MainWindow>()),
      recorder(surroundings, regionChooser, std::move(environment.source)),
      documentsFolder_(std::move(environment.documentsFolder)) {
    regionChooser.setWindows([this] { return recorder.source().titledWindows(); });
    recorder.setGate(
        [this](std::function<void()> goOn) { return exporter.mustAskFirst(std::move(goOn)); });
    connect(&recorder, &Recorder::recordingReady, this, &AppDelegate::endIfAskedTo);
}

AppDelegate::~AppDelegate() = default;

// Start and end -----------------------------------------------------------------------------------

void AppDelegate::awakeFromNib() {
    start_up::makeMainWindow(*this);
    shell.window()->installEventFilter(this);
    exportOptions = std::make_unique<ExportOptions>(exportControls(*ui), exporter, nullptr);
    fileCard = std::make_unique<FileCard>(fileCardControls(*ui), exporter, nullptr);
    exporter.setChoices([this] { return exportOptions->choices(); });
    controls_ = std::make_unique<Controls>(*this);
}

bool AppDelegate::applicationDidFinishLaunching() {
    return start_up::run(*this, *controls_, documentsFolder_);
}

QSizeF AppDelegate::windowWillResizeToSize(QSizeF proposed) {
    return {std::max(proposed.width(), smallestWidth), std::max(proposed.height(), smallestHeight)};
}

void AppDelegate::RemoveAllContentInFolder(const QString &folder) {
    working_folders::removeContent(folder);
}

bool AppDelegate::eventFilter(QObject *watched, QEvent *event) {
    const bool closing = watched == shell.window() && event->type() == QEvent::Close;
    // The application object asks to quit when the desktop session or the window system ends us.
    const bool quitting = watched == QCoreApplication::instance() && event->type() == QEvent::Quit;
    if (quitting)
        applicationWillTerminate();
    if (!closing)
        return QObject::eventFilter(watched, event);
    windowWillClose();
    event->ignore();
    return true;
}

void AppDelegate::windowWillClose() { endForTheUser(); }

void AppDelegate::endForTheUser() {
    // What is being read is still whole on disk, and is offered again.
    if (recorder.isOpeningRecording())
        Terminate_App();
    if (recording.m_RecordStatus() != RECORD_STATUS_STOP)
        recorder.OnRecordStop();
    // The end must not cost the recording that is being saved.
    if (recorder.isSavingRecording()) {
        endsOnceSaved_ = true;
        surroundings.showStatus(qtTrId("IDD_CLOSE_WAITS"));
        return;
    }
    if (exporter.mustAskFirst([this] { endForTheUser(); }))
        return;
    recorder.endedByUser();
    Terminate_App();
}

void AppDelegate::endIfAskedTo() {
    // Where frames are missing, the status line says so and offers to save them again.
    if (std::exchange(endsOnceSaved_, false) && !recorder.hasMissingFrames())
        endForTheUser();
}

void AppDelegate::applicationWillTerminate() {
    keepWhatRuns();
    Terminate_App();
}

void AppDelegate::keepWhatRuns() {
    const int before = TerminationNotice::arrivals();
    recorder.keepForNextStart([before] { return TerminationNotice::arrivals() > before; });
}

void AppDelegate::Terminate_App() {
    disconnect(shell.localeChangeObserver());
    if (shell.window() && shell.window()->isVisible())
        window_place::remember(*shell.window());
    if (exportOptions)
        exportOptions->remember();
    settings::flush();
    // No destructors: save threads may be at work beside them, and nested event loops stand on the
    // stack. The kernel ends a running tool, as it was asked to when the tool was started.
    std::_Exit(EXIT_SUCCESS);
}

// Tabs and menus ----------------------------------------------------------------------------------

bool AppDelegate::tabViewShouldSelectTabViewItem(const QString &identifier) {
    const bool may = tabs::mayEnter(identifier, recording.m_RecordStatus(), trim.m_PlayStatus());
    if (!may)
        surroundings.showStatus(recording.m_RecordStatus() != RECORD_STATUS_STOP
                                    ? qtTrId("IDD_TAB_NEEDS_STOP_RECORDING")
                                    : qtTrId("IDD_TAB_NEEDS_STOP_PLAYBACK"));
    return may;
}

void AppDelegate::tabViewDidSelectTabViewItem(const QString &identifier) {
    tabs::entered(identifier, *this);
}

void AppDelegate::OnMenuTabRecord() { shell.tabviewMain()->selectTabViewItemAtIndex(tabs::record); }
void AppDelegate::OnMenuTabCut() { shell.tabviewMain()->selectTabViewItemAtIndex(tabs::cut); }
void AppDelegate::OnMenuTabGIF() { shell.tabviewMain()->selectTabViewItemAtIndex(tabs::gif); }
void AppDelegate::OnMenuHelp() { help::openFirstPage(surroundings.alerts); }
void AppDelegate::OnMenuHelpAppHomePage() { help::open(help::firstPage); }
void AppDelegate::OnMenuHelpCompanyHomePage() { help::open("maker.html"); }
void AppDelegate::OnMenuHelpPrivacyPolicy() { help::open("privacy.html"); }
void AppDelegate::OnMenuHelpSubmitTicket() { help::open("ticket.html"); }
void AppDelegate::OnMenuAbout() { showAbout(surroundings); }

void AppDelegate::listenToDesktopKeys() {
    if (!recorder.source().obstacle())
        desktopKeys_ = std::make_unique<DesktopKeys>(*ui, surroundings, recorder);
    if (regionChooser.offersRegion())
        surroundings.showStatus(qtTrId("IDD_REGION_DOES_NOT_FIT"));
    if (exporter.hasUnsavedResult())
        exporter.sayWhatIsUnsaved();
}

// Forwards that need more than a name -------------------------------------------------------------

QRectF AppDelegate::return_Best_Fit_Frame(double imageWidth, double imageHeight, double areaWidth,
                                          double areaHeight) {
    const FittingFrame frame = bestFitFrame(imageWidth, imageHeight, areaWidth, areaHeight);
    return {frame.x, frame.y, frame.width, frame.height};
}

ToolRun AppDelegate::RunToolReadAllOutput(const QString &toolPath, const QStringList &arguments) {
    return exporter.RunToolReadAllOutput(toolPath, arguments);
}

ToolExit AppDelegate::RunToolWithProgress(const QString &toolPath, const QStringList &arguments,
                                          ProgressType type) {
    return exporter.RunToolWithProgress(toolPath, arguments, type);
}

std::uint64_t AppDelegate::Return_Seconds_From_VOB_Duration_Str(const QString &stamp) {
    return secondsFromStamp(stamp);
}
