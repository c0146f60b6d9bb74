// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/export_fields.h"
#include "export/frame_timing.h"
#include "record/capture_fields.h"
#include "record/measured_rate.h"
#include "record/recording_fields.h"
#include "region/region_fields.h"
#include "shell/surroundings.h"
#include "trim/range_rules.h"
#include "trim/trim_fields.h"

#include <QObject>
#include <QProcess>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

class FrameSaver;
class GlobalShortcuts;
class RecordingLoader;
class WindowServer;
enum class GifPreset;
struct RecordingNote;
struct SaveRequest;
struct ToolExit;
struct ToolRun;
struct GifFileJob;
struct GifFileResult;
struct MadeGif;
class Window_Progress;
namespace Ui {
class MainWindow;
}

/// The application controller: the one owner of state, and the receiver of every action, timer and
/// notice. A single instance lives as long as the process. It holds no rules and no drawing: rules
/// are pure functions in the concerns' folders, views draw what they read here.
///
/// The methods of a concern are implemented in that concern's folder. Everything runs on the main
/// thread.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    /// What the controller takes from outside, so that a test can give another one.
    struct Environment {
        std::unique_ptr<WindowServer> windowServer;
        /// The user's Documents folder, absolute, in which the working folders lie.
        QString documentsFolder;
    };

    explicit AppDelegate(Environment environment);
    ~AppDelegate() override;

    // State, by concern -----------------------------------------------------------------------

    Surroundings surroundings;
    ShellFields &shell = surroundings.shell;
    InterfaceStrings &texts = surroundings.texts;
    CaptureFields capture;
    RecordingFields recording;
    RegionFields region;
    TrimFields trim;
    ExportFields exporting;

    /// The controls of the main window, by their established names (`ui->btnRecordRecord`).
    std::unique_ptr<Ui::MainWindow> ui;

    // Start and end (app/) --------------------------------------------------------------------

    /// Sets what the interface description leaves to the controller; before the start-up.
    void awakeFromNib();
    /// The start-up sequence; the window is shown when it returns. False when a working folder
    /// could not be made (the user has been told): the process must end, with status 0.
    bool applicationDidFinishLaunching();
    bool applicationShouldTerminateAfterLastWindowClosed() const { return true; }
    /// The main window is closing: ends the process. Returns when a recording is being saved, as
    /// the status line then says, or when something has to be answered first.
    void windowWillClose();
    /// The platform's termination notice (signals, the end of the session).
    void applicationWillTerminate();
    /// Ends the process at once with status 0, from wherever it is called: settings are written, a
    /// running tool is ended, nothing else is released or emptied.
    [[noreturn]] void Terminate_App();
    void GetScreenSize() { surroundings.updateScreen(); }
    /// The smallest allowed size is 556 by 425 points; larger sizes pass unchanged.
    static QSizeF windowWillResizeToSize(QSizeF proposed);
    /// The screen configuration changed: an open region overlay whose screen is another now ends,
    /// and the whole screen is recorded.
    void screenParametersDidChange();

    // Working folders (app/) ------------------------------------------------------------------

    void RemoveAllContentInFolder(const QString &folder);

    // Tabs and menus (app/) -------------------------------------------------------------------

    /// Whether the tab with this identifier ("1" Record, "2" Cut, "3" GIF) may be entered now.
    bool tabViewShouldSelectTabViewItem(const QString &identifier) const;
    /// Prepares the tab that was entered: timers, enabling, first values.
    void tabViewDidSelectTabViewItem(const QString &identifier);
    // The menus' items. Those of Tab ask for a tab, which may refuse; those of Action are the
    // buttons' actions, below; those of Help open a page in the user's browser.
    void OnMenuTabRecord();
    void OnMenuTabCut();
    void OnMenuTabGIF();
    void OnMenuActionRecordFullScreen();
    void OnMenuActionRecordRegion();
    void OnMenuActionRecordRecord();
    void OnMenuActionRecordPause();
    void OnMenuActionRecordStop();
    void OnMenuActionRecordFPS();
    void OnMenuActionCutPlay();
    void OnMenuActionCutPause();
    void OnMenuActionCutStop();
    void OnMenuActionGIFExport();
    /// Opens the first help page, and says where it lies when nothing can show it.
    void OnMenuHelp();
    void OnMenuHelpAppHomePage();
    void OnMenuHelpCompanyHomePage();
    void OnMenuHelpPrivacyPolicy();
    void OnMenuHelpSubmitTicket();
    /// Lets Record, Pause and Stop also be pressed while another window has the focus, as far as
    /// the window server grants it; the status line says which keys do it and which are taken.
    void listenToDesktopKeys();
    /// Version, licence, and which encoders were found where; returns when it is dismissed.
    void OnMenuAbout();
    /// Ends the process as `Terminate_App` does, once nothing has to be answered first.
    void OnMenuQuit();

    /// Lets the main window's title and icon tell of a recording, for whoever sees only a task bar.
    void showStateInTaskBar();

    // Window-list capture (record/) -----------------------------------------------------------

    /// Takes the window server's list into `arrayController`, front to back.
    void updateWindowList();
    /// The numbers of these windows, by their place in the stack and not in `selection`.
    std::vector<std::uint32_t> newWindowListFromSelection(std::span<const WindowEntry> selection);
    /// Grabs these windows, or the part of them that the next frame needs, into `imgScreenCapture`.
    void createMultiWindowShot(std::span<const WindowEntry> selection);
    /// Stores a grab in `imgScreenCapture`, halved on a double-density screen; none keeps the
    /// previous one.
    void setOutputImage(const std::optional<Image> &grab);
    /// The image scaled smoothly to whole pixels, at least one each way; its ratio is kept in
    /// single precision. The empty image stays so.
    Image Scale_Image_By_Percentage(const Image &image, float percentage);
    /// Ours as long as the process lives.
    WindowServer &windowServer() { return *windowServer_; }

    // Recording (record/) ---------------------------------------------------------------------

    // `sender` is the control that an action comes from, here and below; it decides nothing.

    /// Starts a recording, for which store and folder are emptied, or goes on with a paused one.
    /// Nothing while one runs or is being saved, or where nothing can be recorded.
    void OnRecordRecord(QObject *sender);
    void OnRecordPause(QObject *sender);
    /// Measures the rate and starts the save; the Cut tab follows when the last frame is on disk. A
    /// recording without frames ends here.
    void OnRecordStop(QObject *sender);
    /// Lets the user choose the capture rate; returns when the dialog is closed.
    void OnRecordFPS(QObject *sender);
    /// Saves the last recording once more from memory: for when frames were missing and there is
    /// room again. Nothing without a recording, or beside a recording, a save or an export.
    void OnSaveAgain(QObject *sender);
    /// The capture tick: list, leave out our own windows, grab, mark the preview.
    void TimerRefreshVideoRoutine();
    /// The one-second tick: counts the frames of a second that fell into a recording.
    void TimerDebug1SecondRoutine();
    /// Starts the capture timer again with the interval 1 / `u_FPS`, in single precision.
    void restartCaptureTimer();
    void restartOneSecondTimer();
    /// Ends both timers: off the Record tab nothing is grabbed.
    void stopRecordTimers();
    /// The frame-store step: while recording, appends `imageScreenCaptureFinal` to the store.
    void storeFrame();
    /// What the recording has counted so far.
    RecordingCounts recordingCounts() const;
    /// Whether the frames of a stopped recording are still being written.
    bool isSavingRecording() const;
    /// Keeps beside the saved frames what a later start needs to open them again.
    void noteRecording();
    /// The user has ended the program: the next start has nothing to offer.
    void forgetRecording();
    /// Asks whether to open the recording that an earlier start left in the recording folder, or to
    /// delete it.
    void offerRecording(const RecordingNote &note);
    /// Whether its frames are being read.
    bool isOpeningRecording() const;
    /// Shows on the Record tab whether this session can be recorded, and what would be.
    void prepareRecordTab();
    /// Brings the labels beside the capture buttons up to what is recorded, screen or region, and
    /// how often.
    void showCaptureMode();
    /// Brings indicator and status line up to the recording's state and figures.
    void showRecordingState();
    /// Pauses the recording when the machine runs out of memory, and says so; else brings the
    /// figures up to date.
    void watchMemory();

    // Preview and progress sheet (record/) ----------------------------------------------------

    /// Where an image is drawn in an area, see `bestFitFrame` in record/fitting.h.
    QRectF return_Best_Fit_Frame(double imageWidth, double imageHeight, double areaWidth,
                                 double areaHeight);
    Window_Progress *windowProgress() const { return surroundings.progress.windowProgress(); }

    // Region (region/) ------------------------------------------------------------------------

    void OnRecordFullScreen(QObject *sender);
    /// Explains, unless the user has had enough of it, and lets a region be chosen on the main
    /// window's screen; when that is cancelled, what is recorded stays as it was. Returns after it.
    void OnRecordRegion(QObject *sender);
    /// Ends and closes the open overlay and its modal loop because the screen has changed;
    /// `pFullScreen` is null afterwards, and the whole screen is recorded.
    void endRegionOverlay();

    // Trim editor (trim/) ---------------------------------------------------------------------

    /// Plays from the first frame of the trimmed range, or on from where it was paused.
    void OnCutPlay(QObject *sender);
    void OnCutPause(QObject *sender);
    void OnCutStop(QObject *sender);
    /// Puts the handles to the ends: a new recording is kept whole.
    void keepWholeRecording();
    /// The playback tick: the next frame, and the first one again after the last.
    void TimerRefreshPlayRoutine();
    /// Pauses what plays, plays what does not, if there is something to play.
    void togglePlayback();
    /// Says which of the three commands can be used.
    void enablePlayback(bool play, bool pause, bool stop);
    /// Works out `uFirstFrame` and `uLastFrame` from the handles' percentages.
    void updateTrimmedRange();
    /// The frames that playback and exports show: from `uFirstFrame` to `uLastFrame` or the
    /// recording's last frame, whichever comes first, both included. None when there is no such
    /// frame.
    std::optional<range_rules::Kept> keptRange() const;
    /// Says under the preview what an export would hold; nothing without a recording.
    void showTrimmedRange(bool recordingExists);

    // GIF options (export/) -------------------------------------------------------------------

    /// Resets the GIF tab to the original size and rate, or disables it without a recording.
    void resetGIFOptions();
    // Each of these acts when its radio button is the one that is switched on: the recording's own
    // size or rate is written into the fields, or the fields are set free.
    void OnGIFOriginalResolution(QObject *sender);
    void OnGIFCustomResolution(QObject *sender);
    void OnGIFOriginalFPS(QObject *sender);
    void OnGIFCustomFPS(QObject *sender);
    /// A size field was edited: while the ratio is tied, the other side follows. A text that does
    /// not begin with a number other than 0 changes nothing.
    void OnGIFChangeWidth(QObject *sender);
    void OnGIFChangeHeigth(QObject *sender);
    /// The height follows the width when the ratio is tied.
    void OnGIFChangeKeepAspectRatio(QObject *sender);
    /// Sends the actions of the size fields whose edits have not been acted upon yet.
    void finishEditingGIFSize();
    /// Says beside the size fields what is wrong with what is typed there, if anything.
    void updateGIFDimensionHint();
    /// Says beside the loop field what is wrong with what is typed there, or else what 0 means.
    void updateWebPLoopsHint();
    /// Says what the file will hold: frames, seconds, and the rate that comes of it.
    void updateGIFSummary();
    /// The quality that the GIF is made in.
    GifPreset chosenGIFPreset() const;
    /// Why the program's own encoder makes no GIF of the size that is typed, in the user's words:
    /// no plain number from 1 to 65,535, or more memory than half of what is free. None when it
    /// does.
    std::optional<QString> GIFSizeRefusal() const;
    /// What the options ask for, of what is kept of the recording.
    frame_timing::Request timingRequest() const;
    /// Size of the recording's frames in pixels; none without a recording.
    std::optional<QSize> originalSize() const;
    /// Ratio that the typed size is tied to; none when it is free.
    std::optional<float> tiedAspectRatio() const;

    // Export (export/) ------------------------------------------------------------------------

    /// Makes the GIF of the trimmed range and lets the user choose its place; an alert says why
    /// where that cannot be done. Nothing while an export is under way.
    void OnGIFExport(QObject *sender);
    /// Likewise the WebP.
    void Generate_WebP(QObject *sender);

    /// Whether a finished export has no place of the user's yet, since the panel was cancelled or
    /// the place could not be used. It lies in the export folder.
    bool hasUnsavedResult() const;
    /// Lets the user choose a place for it once more.
    void saveUnsavedResult();
    /// To be asked before a new recording, a new export and the end of the program, all of which
    /// lose an unsaved export. False when nothing is in the way. True when something is: the caller
    /// does nothing, and `goOn` is called later if the user saves or discards the export.
    bool mustAskFirst(std::function<void()> goOn);

    // Running the tools (export/) -------------------------------------------------------------

    /// Runs a tool to its end while the event loop turns and returns all that it wrote. A progress
    /// sheet stays up, its bar where it is.
    ToolRun RunToolReadAllOutput(const QString &toolPath, const QStringList &arguments);
    /// Runs an encoder while the event loop turns and its error output moves the bar of the
    /// progress sheet. The sheet is closed when it returns, however the run ended, unless the run
    /// only prepares the next one. `type` is one of PROGRESS_TYPE_GIF and the others.
    ToolExit RunToolWithProgress(const QString &toolPath, const QStringList &arguments,
                                 std::uint64_t type = PROGRESS_TYPE_GIF);
    /// Ends the export that is under way: tool and encoder at once, the export itself when they
    /// have ended. Its files are removed, the recording stays.
    void cancelExport();
    /// The watched tool has written to its output: takes it and forgets it.
    void outData(QProcess &tool);
    /// A chunk of the watched tool's error output; empty at its end.
    void errData(const QByteArray &data);
    /// The watched tool has ended, or could not be started; nothing of it is handled afterwards.
    void terminated(int exitCode, QProcess::ExitStatus status);
    /// See `secondsFromStamp` in export/progress_parser.h.
    static std::uint64_t Return_Seconds_From_VOB_Duration_Str(const QString &stamp);

private:
    /// Makes the GIF with the program's own encoder, in threads of its own, while events are
    /// turned.
    MadeGif makeGIF(std::span<const frame_timing::TimedFrame> frames, float tolerance);
    GifFileResult runEncoder(const GifFileJob &job);
    /// Stages the frames and makes the GIF by three runs of `ffmpeg`.
    MadeGif makeClassicGIF(std::span<const frame_timing::TimedFrame> frames);
    /// The three runs and the look at their result: why there is no GIF, or none.
    std::optional<QString> runClassicEncoder(std::span<const frame_timing::TimedFrame> frames);
    /// Likewise for the WebP.
    std::optional<QString> encodeWebP(std::span<const frame_timing::TimedFrame> frames);
    /// Scales the frames, each once, into files of their own in the export folder.
    std::optional<QString> scaleForWebP(std::span<const frame_timing::TimedFrame> frames);
    /// Starts the tool and waits for its end while events are turned; why it was not started, or
    /// none.
    std::optional<ToolExit> runWhileEventsTurn(QProcess &tool, const QString &toolPath,
                                               const QStringList &arguments);
    /// Shows the progress sheet of an export, which can be cancelled, and sees to it that it is on
    /// the screen. `step` stands in its bar.
    void showExportSheet(const QString &caption, const QString &step);
    /// Takes the sheet down and shows the alert or removes what a cancelled export has left. True
    /// when the export has ended with that.
    bool endedWithoutResult(const std::optional<QString> &failure);
    /// Lets the user choose a place for a finished file and puts it there.
    void saveResult(const SaveRequest &request);
    void chooseResultsPlace();
    void showUnsavedResult();
    void forgetResult();

    // Connecting controls to actions, each in its concern's folder.
    void connectShellControls();
    void connectRecordControls();
    void connectTrimControls();
    void connectExportControls();
    void connectGIFQuality();

    /// Ends the process as the user wishes it, by closing the window or from the menu. Returns when
    /// something has to be answered first.
    void endForTheUser();
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// False when one could not be made; the user has been told.
    bool createWorkingFolders();
    void applyTexts();
    void applyIcons();
    /// Says which of the three commands can be used.
    void enableRecording(bool record, bool pause, bool stop);
    /// Whether the whole screen, a region and the rate can be chosen: not while one records.
    void enableRecordChoices(bool enabled);
    // The save of a stopped recording (record/): begun, reported frame by frame, ended.
    bool mayRecord();
    void saveRecording();
    void frameReported(std::uint64_t done);
    void recordingSaved();
    void showSaveResult(const FrameSaver &saver);
    // A recording that was left by an earlier start (record/): read frame by frame, taken over.
    void openRecording(const RecordingNote &note);
    void frameLoaded(std::uint64_t done);
    void takeRecording(std::vector<Image> frames, const RecordingNote &note);

    std::unique_ptr<WindowServer> windowServer_;
    QString documentsFolder_;
    std::unique_ptr<FrameSaver> frameSaver_;
    std::unique_ptr<RecordingLoader> loader_;
    std::unique_ptr<GlobalShortcuts> desktopKeys_;
    QProcess *watchedTool_ = nullptr; // while `RunToolWithProgress` waits for it
};

/// The delegate of the application object: how views and dialogs reach the controller. Null before
/// the controller is made, as in tests of a view that needs none.
AppDelegate *appDelegate();
