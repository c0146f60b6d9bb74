// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/export_options.h"
#include "export/exporter.h"
#include "record/fitting.h"
#include "record/recorder.h"
#include "region/region_chooser.h"
#include "shell/surroundings.h"
#include "trim/trim_editor.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>
#include <span>

class Controls;
class DesktopKeys;
class FileCard;
class ScreenSource;
namespace Ui {
class MainWindow;
}

/// The application controller. It owns everything, answers to every established name, and decides
/// nothing itself: the desks hold state and behaviour, `Controls` ties them to the main window. A
/// single instance lives as long as the process. Everything runs on the main thread.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    /// What the controller takes from outside, so that a test can give another one.
    struct Environment {
        std::unique_ptr<ScreenSource> source;
        /// The user's Documents folder, absolute, which holds the working folders.
        QString documentsFolder;
    };

    explicit AppDelegate(Environment environment);
    ~AppDelegate() override;

    /// The controls of the main window, by their established names (`ui->btnRecordRecord`).
    std::unique_ptr<Ui::MainWindow> ui;

    // The desks, each with what it needs ------------------------------------------------------

    Surroundings surroundings;
    RegionChooser regionChooser{surroundings};
    Recorder recorder;
    TrimEditor trimEditor{surroundings, recorder};
    Exporter exporter{surroundings, recorder, trimEditor};
    /// What works the GIF tab's controls; made with the main window.
    std::unique_ptr<ExportOptions> exportOptions;
    /// What works the card of the GIF tab; made with the main window.
    std::unique_ptr<FileCard> fileCard;

    // State, by concern: the fields of the desks ----------------------------------------------

    ShellFields &shell = surroundings.shell;
    InterfaceStrings &texts = surroundings.texts;
    CaptureFields &capture = recorder.capture;
    RecordingFields &recording = recorder.recording;
    RegionFields &region = regionChooser.region;
    TrimFields &trim = trimEditor.trim;
    ExportFields &exporting = exporter.exporting;
    Window_Progress *windowProgress() const { return surroundings.progress.windowProgress(); }

    // Start and end ---------------------------------------------------------------------------

    // `sender` is the control that an action comes from, here and below; it decides nothing.

    /// Loads the main window and sets what its description leaves open; before the start-up.
    void awakeFromNib();
    /// The start-up sequence; the window is shown when it returns. False when a working folder
    /// could not be made (the user has been notified): the process must end, with status 0.
    bool applicationDidFinishLaunching();
    bool applicationShouldTerminateAfterLastWindowClosed() const { return true; }
    /// The main window is closing: ends the process. Returns when a recording has to be saved
    /// first, as the status line then says, or when something has to be answered.
    void windowWillClose();
    /// The platform's termination notice (signals, the end of the session).
    /// Keeps a recording that runs for the next start; a second notice meanwhile ends it at once.
    [[noreturn]] void applicationWillTerminate();
    /// What is left to do when the toolkit ends the process by itself, since its display is gone.
    void keepWhatRuns();
    /// Ends the process at once with status 0, from wherever it is called: settings are written, a
    /// running tool is ended, nothing else is released or emptied.
    [[noreturn]] void Terminate_App();
    void GetScreenSize() { surroundings.updateScreen(); }
    /// The smallest allowed size is 556 by 425 points; larger sizes pass unchanged.
    static QSizeF windowWillResizeToSize(QSizeF proposed);
    /// Removes everything inside the folder and keeps the folder.
    void RemoveAllContentInFolder(const QString &folder);

    // Tabs and menus --------------------------------------------------------------------------

    /// Whether the tab with this identifier ("1" Record, "2" Cut, "3" GIF) may be entered now.
    bool tabViewShouldSelectTabViewItem(const QString &identifier);
    /// Prepares the tab that was entered: timers, enabling, first values.
    void tabViewDidSelectTabViewItem(const QString &identifier);
    // The menus' items. Those of Tab ask for a tab, which may refuse; those of Action are the
    // buttons' actions; those of Help open a page in the user's browser.
    void OnMenuTabRecord();
    void OnMenuTabCut();
    void OnMenuTabGIF();
    void OnMenuActionRecordFullScreen() { OnRecordFullScreen(this); }
    void OnMenuActionRecordRegion() { OnRecordRegion(this); }
    void OnMenuActionRecordRecord() { OnRecordRecord(this); }
    void OnMenuActionRecordPause() { OnRecordPause(this); }
    void OnMenuActionRecordStop() { OnRecordStop(this); }
    void OnMenuActionRecordFPS() { OnRecordFPS(this); }
    void OnMenuActionCutPlay() { OnCutPlay(this); }
    void OnMenuActionCutPause() { OnCutPause(this); }
    void OnMenuActionCutStop() { OnCutStop(this); }
    void OnMenuActionGIFExport() { OnGIFExport(this); }
    void OnMenuHelp();
    void OnMenuHelpAppHomePage();
    void OnMenuHelpCompanyHomePage();
    void OnMenuHelpPrivacyPolicy();
    void OnMenuHelpSubmitTicket();
    void OnMenuAbout();
    /// Ends the process as `Terminate_App` does, once nothing has to be answered first.
    void OnMenuQuit() { endForTheUser(); }
    /// Lets Record, Pause and Stop also be pressed while another window has the focus.
    void listenToDesktopKeys();

    // Recording: record/recorder.h ------------------------------------------------------------

    void updateWindowList() { recorder.updateWindowList(); }
    std::vector<std::uint32_t> newWindowListFromSelection(std::span<const WindowEntry> selection) {
        return Recorder::newWindowListFromSelection(selection);
    }
    void createMultiWindowShot(std::span<const WindowEntry> selection) {
        recorder.createMultiWindowShot(selection);
    }
    void setOutputImage(const std::optional<Image> &grab) { recorder.setOutputImage(grab); }
    Image Scale_Image_By_Percentage(const Image &image, float percentage) {
        return Recorder::Scale_Image_By_Percentage(image, percentage);
    }
    void OnRecordRecord(QObject *) { recorder.OnRecordRecord(); }
    void OnRecordPause(QObject *) { recorder.OnRecordPause(); }
    void OnRecordStop(QObject *) { recorder.OnRecordStop(); }
    void OnRecordFPS(QObject *) { recorder.OnRecordFPS(); }
    void TimerRefreshVideoRoutine() { recorder.TimerRefreshVideoRoutine(); }
    void TimerDebug1SecondRoutine() { recorder.TimerDebug1SecondRoutine(); }
    /// Where an image is drawn in an area, see `bestFitFrame` in record/fitting.h.
    QRectF return_Best_Fit_Frame(double imageWidth, double imageHeight, double areaWidth,
                                 double areaHeight);

    // Region: region/region_chooser.h ---------------------------------------------------------

    void OnRecordFullScreen(QObject *) { regionChooser.OnRecordFullScreen(); }
    void OnRecordRegion(QObject *) {
        if (recorder.choosesRegionOnStill())
            recorder.OnRecordRegionOnStill();
        else
            regionChooser.OnRecordRegion();
    }

    // Trim editor: trim/trim_editor.h ---------------------------------------------------------

    void OnCutPlay(QObject *) { trimEditor.OnCutPlay(); }
    void OnCutPause(QObject *) { trimEditor.OnCutPause(); }
    void OnCutStop(QObject *) { trimEditor.OnCutStop(); }
    void TimerRefreshPlayRoutine() { trimEditor.TimerRefreshPlayRoutine(); }

    // Export: export/export_options.h, export/exporter.h --------------------------------------

    void OnGIFOriginalResolution(QObject *) { exportOptions->OnGIFOriginalResolution(); }
    void OnGIFCustomResolution(QObject *) { exportOptions->OnGIFCustomResolution(); }
    void OnGIFOriginalFPS(QObject *) { exportOptions->OnGIFOriginalFPS(); }
    void OnGIFCustomFPS(QObject *) { exportOptions->OnGIFCustomFPS(); }
    void OnGIFChangeWidth(QObject *) { exportOptions->OnGIFChangeWidth(); }
    void OnGIFChangeHeigth(QObject *) { exportOptions->OnGIFChangeHeigth(); }
    void OnGIFChangeKeepAspectRatio(QObject *) { exportOptions->OnGIFChangeKeepAspectRatio(); }
    void OnGIFExport(QObject *) { exporter.OnGIFExport(); }
    void Generate_WebP(QObject *) { exporter.Generate_WebP(); }
    ToolRun RunToolReadAllOutput(const QString &toolPath, const QStringList &arguments);
    ToolExit RunToolWithProgress(const QString &toolPath, const QStringList &arguments,
                                 ProgressType type = PROGRESS_TYPE_GIF);
    void outData(QProcess &tool) { exporter.outData(tool); }
    void errData(const QByteArray &data) { exporter.errData(data); }
    void terminated(int exitCode, QProcess::ExitStatus status) {
        exporter.terminated(exitCode, status);
    }
    /// See `secondsFromStamp` in export/progress_parser.h.
    static std::uint64_t Return_Seconds_From_VOB_Duration_Str(const QString &stamp);

private:
    /// Ends the process as the user wishes it, by closing the window or from the menu. Returns when
    /// something has to be answered or saved first.
    void endForTheUser();
    /// The recording is saved for which the end has waited.
    void endIfAskedTo();
    bool eventFilter(QObject *watched, QEvent *event) override;

    QString documentsFolder_;
    std::unique_ptr<Controls> controls_;
    std::unique_ptr<DesktopKeys> desktopKeys_;
    bool endsOnceSaved_ = false; ///< The user has asked for the end.
};
