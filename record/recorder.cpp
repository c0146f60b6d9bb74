// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recorder.h"

#include "platform/screen_source.h"
#include "platform/text_number.h"
#include "record/left_recording.h"
#include "record/log.h"
#include "record/recording_loader.h"
#include "record/save/frame_saver.h"
#include "record/window_list.h"
#include "region/region_chooser.h"
#include "shell/settings.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <algorithm>
#include <iterator>
#include <utility>

Q_LOGGING_CATEGORY(logRecord, "tovarel.record", QtWarningMsg)

namespace {

constexpr double oneSecond = 1.0;

constexpr auto rateChoice = "Rate";
constexpr auto delayChoice = "Countdown";

std::uint64_t rememberedRate() {
    const std::int64_t rate = integerValue(settings::readChoice(rateChoice));
    return rate >= std::int64_t{lowestRate} && rate <= std::int64_t{highestRate}
               ? static_cast<std::uint64_t>(rate)
               : defaultFramesPerSecond;
}

int rememberedDelay() {
    const std::int64_t delay = integerValue(settings::readChoice(delayChoice));
    return std::ranges::find(offeredDelays, delay) != std::end(offeredDelays)
               ? static_cast<int>(delay)
               : 0;
}

RecordingClock::TimePoint now() { return std::chrono::steady_clock::now(); }

} // namespace

Recorder::Recorder(Surroundings &surroundings, RegionChooser &chooser,
                   std::unique_ptr<ScreenSource> source)
    : surroundings_(surroundings), chooser_(chooser), source_(std::move(source)) {
    connect(source_.get(), &ScreenSource::stateChanged, this, &Recorder::followSource);
    connect(&steppingAside_, &SteppingAside::cameBack, this, &Recorder::ownWindowCameBack);
    countdown_.setTimerType(Qt::PreciseTimer);
    connect(&countdown_, &QTimer::timeout, this, &Recorder::secondPassed);
}

Recorder::~Recorder() = default;

void Recorder::start() {
    capture.setListOptions(1);
    capture.setImageOptions(0);
    capture.setImageBounds(std::nullopt);
    capture.arrayController.clear();
    capture.arrayWindowsMinusHarrowlens.clear();
    capture.setImgScreenCapture({});
    capture.setImageScreenCaptureFinal({});
    recording.setU_FPS(defaultFramesPerSecond);
    recording.setM_RecordStatus(RECORD_STATUS_STOP);
    recording.setI_debug_number_of_view_refresh(0);
    // A source that asks waits until the user wants something of it.
    if (!source().capabilities().asksUser)
        source().start({.rate = recording.u_FPS()});
    hands.start();
    updateCaptureMode();
    showRecordingState();
}

void Recorder::recall() {
    recording.setU_FPS(rememberedRate());
    delay_ = rememberedDelay();
    updateCaptureMode();
}

bool Recorder::mayRecord() const {
    return !source().obstacle() && !saveDue_ && !isSavingRecording();
}

void Recorder::OnRecordRecord() {
    if (recording.m_RecordStatus() == RECORD_STATUS_RECORD || !mayRecord() || isCountingDown())
        return;
    const bool goesOn = recording.m_RecordStatus() == RECORD_STATUS_PAUSE;
    if (!goesOn && gate_ && gate_([this] { OnRecordRecord(); }))
        return;
    if (mustChoose())
        return;
    if (goesOn || delay_ == 0)
        beginOnceAway(goesOn);
    else
        countDown(delay_);
}

void Recorder::setRate(std::uint64_t rate) {
    recording.setU_FPS(rate);
    settings::writeChoice(rateChoice, QString::number(rate));
}

void Recorder::setDelay(int seconds) {
    delay_ = seconds;
    settings::writeChoice(delayChoice, QString::number(seconds));
}

void Recorder::countDown(int seconds) {
    secondsToGo_ = seconds;
    countdown_.start(std::chrono::seconds(1));
    surroundings_.showStatus(stopKey_.isEmpty() ? qtTrId("IDD_COUNTDOWN_RUNS")
                                                : qtTrId("IDD_COUNTDOWN_RUNS_KEY").arg(stopKey_));
    Q_EMIT countdownChanged(seconds);
    Q_EMIT stateChanged();
}

void Recorder::cancelCountdown() {
    if (!isCountingDown())
        return;
    countdown_.stop();
    countdownEnded(qtTrId("IDD_COUNTDOWN_CANCELLED"));
}

void Recorder::countdownEnded(const QString &status) {
    secondsToGo_ = 0;
    surroundings_.showStatus(status);
    Q_EMIT countdownChanged(0);
    Q_EMIT stateChanged();
}

void Recorder::secondPassed() {
    if (--secondsToGo_ > 0) {
        Q_EMIT countdownChanged(secondsToGo_);
        return;
    }
    countdown_.stop();
    countdownEnded({});
    if (mayRecord())
        beginOnceAway(false);
}

void Recorder::begin(bool goesOn) {
    if (!goesOn) {
        makeRoom();
        hasMissingFrames_ = false;
        isExported_ = false;
        recording.setU_Record_Current_Frame(0);
        Q_EMIT began();
        recording.setI_Actual_FPS_while_Recording(0);
        recording.setU_number_of_seconds(0);
        recording.setI_debug_number_of_view_refresh(0);
        recording.clock = {};
        recording.array_Images.emplace();
        recording.budget = {};
        recording.growth = 0;
        recording.heldBefore = recording.store.bytesHeld();
        recordedGrab_ = QSize();
    }
    framesBeforeRun_ = recording.u_Record_Current_Frame();
    // The keys that began it are not part of it.
    hands.forget();
    recording.setM_RecordStatus(RECORD_STATUS_RECORD);
    recording.clock.run(now());
    if (goesOn && recording.timerdebug1Second)
        recording.timerdebug1Second->goOn();
    else
        restartOneSecondTimer();
    showRecordingState();
}

void Recorder::makeRoom() {
    const QString &folder = surroundings_.shell.s_Output_Folder();
    if (!isExported_ && left_recording::isThere(folder) && left_recording::setAside(folder))
        return;
    working_folders::removeContent(folder);
}

void Recorder::OnRecordPause() {
    recording.setM_RecordStatus(RECORD_STATUS_PAUSE);
    recording.clock.hold(now());
    if (recording.timerdebug1Second)
        recording.timerdebug1Second->hold();
    showRecordingState();
}

void Recorder::OnRecordStop() {
    if (isCountingDown()) {
        cancelCountdown();
        return;
    }
    // The store that is being written stays as it is until the last frame has been reported.
    if (isSavingRecording())
        return;
    endRecording();
    steppingAside_.comeBack();
    recording.store.rest();
    // A new recording, which empties store and folder, has to wait for the save.
    saveDue_ = true;
    showRecordingState();
    saveRecording();
}

void Recorder::endRecording() {
    recording.clock.hold(now());
    recording.setM_RecordStatus(RECORD_STATUS_STOP);
    const RecordingCounts counts = recordingCounts();
    recording.setExactRate(measuredRate(counts, recording.u_FPS()));
    qCDebug(logRecord) << counts.storedFrames << "frames in" << counts.passedSeconds << "seconds";
}

RecordingCounts Recorder::recordingCounts() const {
    return {.storedFrames = recording.u_Record_Current_Frame(),
            .passedSeconds = recording.clock.seconds(now())};
}

void Recorder::TimerRefreshVideoRoutine() {
    updateWindowList();
    capture.arrayWindowsMinusHarrowlens.clear();
    for (const WindowEntry &entry : capture.arrayController)
        if (!isOwnWindow(entry))
            capture.arrayWindowsMinusHarrowlens.push_back(entry);
    createMultiWindowShot(capture.arrayWindowsMinusHarrowlens);
    // Whoever draws does it at once, not when the window happens to be painted: a recording goes on
    // while nobody sees the window.
    Q_EMIT ticked();
}

void Recorder::TimerDebug1SecondRoutine() {
    if (recording.m_RecordStatus() != RECORD_STATUS_RECORD)
        return;
    recording.setI_Actual_FPS_while_Recording(
        recording.i_Actual_FPS_while_Recording() +
        static_cast<std::int64_t>(recording.i_debug_number_of_view_refresh()));
    recording.setU_number_of_seconds(recording.u_number_of_seconds() + 1);
    recording.setI_debug_number_of_view_refresh(0);
    watchMemory();
}

void Recorder::OnRecordPointer() {
    hands.showPointer(!hands.isPointerShown());
    // Where the desktop draws it, it has to be asked again; in silence, if it remembers.
    const QString token = settings::readRestoreToken();
    if (source().capabilities().asksUser && isSourceOpen() && !token.isEmpty())
        openSource(token);
    Q_EMIT stateChanged();
}

void Recorder::OnRecordClicks() {
    hands.showClicks(!hands.areClicksShown());
    Q_EMIT stateChanged();
}

void Recorder::OnRecordKeys() {
    hands.showKeys(!hands.areKeysShown());
    Q_EMIT stateChanged();
}

void Recorder::restartCaptureTimer() {
    source().setRate(recording.u_FPS());
    hands.follow();
    recording.timerVideoRefresh.reset();
    recording.timerVideoRefresh = std::make_unique<RepeatingTimer>(
        captureInterval(recording.u_FPS()), [this] { TimerRefreshVideoRoutine(); });
}

void Recorder::restartOneSecondTimer() {
    recording.timerdebug1Second.reset();
    recording.timerdebug1Second =
        std::make_unique<RepeatingTimer>(oneSecond, [this] { TimerDebug1SecondRoutine(); });
}

void Recorder::stopRecordTimers() {
    cancelCountdown();
    recording.timerdebug1Second.reset();
    recording.timerVideoRefresh.reset();
    hands.rest();
}

void Recorder::storeFrame() {
    if (recording.m_RecordStatus() != RECORD_STATUS_RECORD)
        return;
    // Before the first grab there is nothing to keep: a file without pixels does not exist.
    if (capture.imageScreenCaptureFinal().isEmpty())
        return;
    if (!recording.array_Images)
        recording.array_Images.emplace();
    auto &frames = *recording.array_Images;
    const Image previous = frames.empty() ? Image() : frames.back();
    if (frames.empty())
        recordedGrab_ = capture.imgScreenCapture().size();
    frames.push_back(recording.store.keep(capture.imageScreenCaptureFinal(), previous));
    recording.setU_Record_Current_Frame(recording.u_Record_Current_Frame() + 1);
    recording.setI_debug_number_of_view_refresh(recording.i_debug_number_of_view_refresh() + 1);
}
