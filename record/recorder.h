// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record/capture_fields.h"
#include "record/capture_mode.h"
#include "record/marks/hands.h"
#include "record/marks/marks.h"
#include "record/rates.h"
#include "record/recording_fields.h"
#include "record/stepping_aside.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

class FrameSaver;
class RecordingLoader;
class RegionChooser;
class ScreenSource;
class Surroundings;
struct RecordingNote;

/// The countdowns that are offered, in seconds.
inline constexpr int offeredDelays[] = {0, 3, 5, 10};

/// The desk of the recording: grabs the desktop at every tick, keeps the frames, saves them when
/// the recording stops, and reads those back that an earlier start has left. It knows neither tabs
/// nor controls: it says by signals what has changed. Everything runs on the main thread.
class Recorder : public QObject {
    Q_OBJECT

public:
    /// To be asked before the frames of the last recording are lost. True when something has to be
    /// answered first: the caller does nothing, and `goOn` is called later unless the user cancels.
    using Gate = std::function<bool(std::function<void()> goOn)>;

    /// The references are borrowed and outlive it.
    Recorder(Surroundings &surroundings, RegionChooser &chooser,
             std::unique_ptr<ScreenSource> source);
    ~Recorder() override;

private:
    Surroundings &surroundings_;
    RegionChooser &chooser_;
    std::unique_ptr<ScreenSource> source_; // before what watches it

public:
    CaptureFields capture;
    RecordingFields recording;
    /// What of the user's hands is shown.
    Hands hands{*source_};

    /// Without one nothing is asked.
    void setGate(Gate gate) { gate_ = std::move(gate); }

    Surroundings &surroundings() const { return surroundings_; }
    RegionChooser &chooser() const { return chooser_; }
    /// Where the pictures come from. Ours as long as the process lives.
    ScreenSource &source() const { return *source_; }

    // What is recorded, where a dialog of the desktop decides that ------------------------------

    /// Whether pictures come, or will as soon as there are any. Always where no dialog decides.
    bool isSourceOpen() const;
    /// Whether no recording runs, or is about to begin, nor anything of what comes before it.
    bool isAtRest() const;
    /// Lets the user choose, or takes what was chosen last where the desktop still knows it. Does
    /// nothing during a recording.
    void OnChooseSource();
    /// The same of monitors alone.
    void chooseMonitor();
    /// Lets the user choose again.
    void OnChooseAnotherSource();
    /// Whether a region is chosen on a still picture of what the source shows.
    bool choosesRegionOnStill() const;
    /// Lets one be chosen, once a source is open whose pictures have room for one and our own
    /// window is out of sight. Returns at once.
    void OnRecordRegionOnStill();
    /// Gives back what was chosen, while nobody looks at it, and takes it again.
    void closeSource();
    void reopenSource();

    // Window-list capture -----------------------------------------------------------------------

    /// Takes the source's list of windows into `arrayController`, front to back.
    void updateWindowList();
    /// The numbers of these windows, by their place in the stack and not in `selection`.
    static std::vector<std::uint32_t>
    newWindowListFromSelection(std::span<const WindowEntry> selection);
    /// Grabs these windows, or the part of them that the next frame needs, into `imgScreenCapture`.
    void createMultiWindowShot(std::span<const WindowEntry> selection);
    /// Stores a grab in `imgScreenCapture`, halved on a double-density screen; none keeps the
    /// previous one.
    void setOutputImage(const std::optional<Image> &grab);
    /// A frame with what hands did over it; `corner` is where its upper left pixel is in
    /// `imgScreenCapture`.
    Image withMarks(const Image &frame, QPoint corner);
    /// The image scaled smoothly to whole pixels, at least one each way; its ratio is kept in
    /// single precision. The empty image stays so.
    static Image Scale_Image_By_Percentage(const Image &image, float percentage);

    // Recording ---------------------------------------------------------------------------------

    /// The values of the start: stopped, the default rate, no grab.
    void start();
    /// Takes the rate and the countdown of the last start.
    void recall();

    /// Whether a recording can begin or go on: not where nothing can be recorded, nor while the
    /// last one is being saved.
    bool mayRecord() const;
    /// Whether the last recording can be saved once more, since frames of it are missing on disk.
    bool hasMissingFrames() const { return hasMissingFrames_; }

    /// Starts a recording, for which store and folder are emptied, after the countdown if there is
    /// to be one; or goes on with a paused one. Does nothing while one runs, is counted down to or
    /// is being saved, or where nothing can be recorded. Where something has to be chosen first, or
    /// our own window has to go, it begins once that is done.
    void OnRecordRecord();
    void OnRecordPause();
    /// Measures the rate and starts the save. A recording without frames ends here, and so does a
    /// countdown.
    void OnRecordStop();
    /// Shows the mouse pointer in recordings from now on, or no longer.
    void OnRecordPointer();
    /// The same of clicks and of keys.
    void OnRecordClicks();
    void OnRecordKeys();

    /// How long a countdown lasts, in seconds; 0 for none. Remembered.
    int delay() const { return delay_; }
    void setDelay(int seconds);
    bool isCountingDown() const { return secondsToGo_ > 0; }
    int secondsToGo() const { return secondsToGo_; }
    /// What ends it from any window, for the user to read; empty where nothing does.
    void setStopKey(const QString &key) { stopKey_ = key; }
    /// Ends the countdown without a recording; nothing happens without one.
    void cancelCountdown();

    /// The capture rate, in frames per second. Remembered.
    void setRate(std::uint64_t rate);
    /// Lets the user choose the capture rate; returns when the dialog is closed.
    void OnRecordFPS();
    /// Saves the last recording once more from memory: for when frames were missing and there is
    /// room again. Does nothing without a recording, or during a recording or a save.
    void OnSaveAgain();

    /// The capture tick: list, leave out our own windows, grab; then `ticked`.
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
    bool isSavingRecording() const { return frameSaver_ != nullptr; }
    /// A file of the recording has got its place: there is no need any more to keep it for later.
    void markExported() { isExported_ = true; }
    /// The user ends the program: the next start offers what no file was made of, and nothing else.
    void endedByUser();
    /// Keeps a recording that runs or is being saved for the next start, as the process is about to
    /// end: writes it to the end, without the event loop, unless `givesUp` is true before that.
    void keepForNextStart(const std::function<bool()> &givesUp);
    /// Whether there is a recording that the last one has replaced, and it may be had back now.
    bool mayBringBackPrevious() const;
    /// Lets the two change places, and opens the one before.
    void OnRecordPrevious();
    /// Asks whether to open the recording that an earlier start left in the recording folder, or to
    /// delete it.
    void offerRecording(const RecordingNote &note);
    /// Whether its frames are being read.
    bool isOpeningRecording() const { return loader_ != nullptr; }

    /// What is recorded and how often.
    const CaptureMode &captureMode() const { return mode_; }
    /// Brings it up to date; `captureModeChanged` when it is another now.
    void updateCaptureMode();
    /// Says the recording's figures in the status line, while there is one; with `stateChanged`.
    void showRecordingState();
    /// Pauses the recording when the machine runs out of memory, and says so; else brings the
    /// figures up to date.
    void watchMemory();

Q_SIGNALS:
    /// Controls, indicators and the task bar may have something else to show now.
    void stateChanged();
    void captureModeChanged(const CaptureMode &mode);
    /// The recording begins in so many seconds; 0 when the countdown has ended, either way.
    void countdownChanged(int seconds);
    /// What the source is doing, or what was chosen, is another now.
    void sourceChanged();
    /// A grab has been taken: whoever shows it draws now, which is also what stores a frame.
    void ticked();
    /// A new recording begins: what was chosen of the last one is gone.
    void began();
    /// The last recording is about to be written again: nobody may read its files meanwhile.
    void aboutToSaveAgain();
    /// A recording is in the store and, as far as that was possible, in the recording folder.
    void recordingReady();

private:
    /// Starts a recording, or goes on with one, at once.
    void begin(bool goesOn);
    /// Empties the recording folder for a new recording; one that no file was made of stays at
    /// hand.
    void makeRoom();
    /// Ends the recording's time, and measures its rate.
    void endRecording();
    /// Keeps beside the saved frames what a later start needs to open them again.
    void noteRecording();
    void countDown(int seconds);
    void secondPassed();
    void countdownEnded(const QString &status);
    void grabPlaceChanged();
    void openSource(const QString &restoreToken, bool onlyMonitors = false);
    void takeStill();
    void followSource();
    void forgetPicture();
    /// Whether the user has to choose first what is recorded; if so Record is pressed again then.
    bool mustChoose();
    /// Begins when our own windows are out of the picture.
    void beginOnceAway(bool goesOn);
    /// Pauses, without the frames that may show it already.
    void ownWindowCameBack();
    /// The grab in the size that the recording has, whatever became of what is recorded.
    Image fittedToRecording(const Image &grab);
    // The save of a stopped recording: begun, reported frame by frame, ended.
    void saveRecording();
    void frameReported(std::uint64_t done);
    void showSaveResult(const FrameSaver &saver);
    // A recording that was left by an earlier start: read frame by frame, taken over.
    void openRecording(const RecordingNote &note);
    void frameLoaded(std::uint64_t done);
    void takeRecording(std::vector<Image> frames, const RecordingNote &note);

    SteppingAside steppingAside_{surroundings_, [this] { return source().newestPicture(); }};
    bool choosesRegionOnceLive_ = false;
    bool recordsOnceOpen_ = false;      ///< Record was pressed before anything was chosen.
    bool reopens_ = false;              ///< Something was chosen when it was given back.
    std::uint64_t framesBeforeRun_ = 0; ///< Stored when the recording began or went on.
    QSize recordedGrab_;                ///< The size of grabs when the recording began.
    Image fittedFrom_;
    Image fitted_;
    Gate gate_;
    Marks marks_;
    CaptureMode mode_;
    int delay_ = 0;       // seconds
    int secondsToGo_ = 0; // of a countdown
    QTimer countdown_;
    QString stopKey_;
    bool saveDue_ = false; ///< A save is about to begin.
    bool hasMissingFrames_ = false;
    bool isExported_ = false;
    bool bringsBack_ = false; ///< What is being read is the recording before the last one.
    std::unique_ptr<FrameSaver> frameSaver_;
    std::unique_ptr<RecordingLoader> loader_;
};
