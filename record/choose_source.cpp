// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recorder.h"
#include "region/region_chooser.h"
#include "shell/settings.h"
#include "shell/surroundings.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// How long before we learn of it a window of ours may have been in the pictures, in seconds. The
/// desktop tells us 5 to 40 ms before it shows the window; the rest is for a machine that is busy.
constexpr double doubtful = 0.15;
/// Frames that may have been stored while the news was waiting to be read.
constexpr std::uint64_t storedMeanwhile = 1;

/// The screen that shows what was chosen, as far as can be told: the place is not to be trusted,
/// but a size that only one has is.
QScreen &screenOf(const ChosenSource &chosen) {
    QScreen *best = QGuiApplication::primaryScreen();
    int score = 0;
    for (QScreen *screen : QGuiApplication::screens()) {
        if (!chosen.place)
            break;
        const int size = screen->size() == chosen.place->size() ? 2 : 0;
        const int place = screen->geometry().topLeft() == chosen.place->topLeft() ? 1 : 0;
        if (size + place > score) {
            score = size + place;
            best = screen;
        }
    }
    return *best;
}

} // namespace

bool Recorder::isSourceOpen() const {
    const SourceState state = source().state();
    return !source().capabilities().asksUser || state == SourceState::Waiting ||
           state == SourceState::Live;
}

bool Recorder::isAtRest() const {
    return recording.m_RecordStatus() == RECORD_STATUS_STOP && !isCountingDown() &&
           !recordsOnceOpen_ && !choosesRegionOnceLive_ && steppingAside_.isHere() &&
           !surroundings_.alerts.isAsking();
}

void Recorder::OnChooseSource() { openSource(settings::readRestoreToken()); }

void Recorder::chooseMonitor() { openSource(settings::readRestoreToken(), true); }

void Recorder::OnChooseAnotherSource() {
    // A region is one of what was chosen before.
    chooser_.OnRecordFullScreen();
    openSource({});
}

bool Recorder::choosesRegionOnStill() const { return source().capabilities().asksUser; }

void Recorder::OnRecordRegionOnStill() {
    if (recording.m_RecordStatus() != RECORD_STATUS_STOP)
        return;
    if (source().state() != SourceState::Live) {
        choosesRegionOnceLive_ = true;
        if (!isSourceOpen() && source().state() != SourceState::Asking)
            OnChooseSource();
        return;
    }
    // What a window shows has no place on the screen where a region could be drawn.
    if (source().capabilities().leavesOwnOut) {
        surroundings_.showStatus(qtTrId("IDD_REGION_OF_WINDOW"));
        return;
    }
    if (chooser_.explainRegion(false))
        steppingAside_.goQuietly([this] { takeStill(); });
}

void Recorder::takeStill() {
    const auto picture = source().latest({}, {});
    const auto chosen = source().chosen();
    if (picture && chosen)
        chooser_.chooseOnStill(picture->image.toQImage(), screenOf(*chosen));
    steppingAside_.comeBack();
    updateCaptureMode();
}

void Recorder::openSource(const QString &restoreToken, bool onlyMonitors) {
    if (recording.m_RecordStatus() != RECORD_STATUS_STOP || source().obstacle())
        return;
    forgetPicture();
    source().start({.rate = recording.u_FPS(),
                    .restoreToken = restoreToken,
                    .pointer = hands.isPointerShown(),
                    .onlyMonitors = onlyMonitors});
}

void Recorder::closeSource() {
    recordsOnceOpen_ = false;
    if (!source().capabilities().asksUser)
        return;
    reopens_ = reopens_ || isSourceOpen();
    // What ended it goes on to be told.
    if (isSourceOpen() || source().state() == SourceState::Asking)
        source().stop();
}

void Recorder::reopenSource() {
    if (!source().capabilities().asksUser || !std::exchange(reopens_, false))
        return;
    // Without a word to find it by again the desktop would ask, and nobody has asked for that.
    const QString token = settings::readRestoreToken();
    if (!token.isEmpty())
        openSource(token);
}

void Recorder::forgetPicture() {
    capture.setGrabBeforeHalving({});
    capture.setImgScreenCapture({});
    capture.setImageScreenCaptureFinal({});
}

void Recorder::followSource() {
    const SourceState state = source().state();
    if (state == SourceState::Waiting)
        settings::writeRestoreToken(source().restoreToken());
    if (!isSourceOpen()) {
        // The desktop's own way to stop: what has been recorded is kept.
        if (recording.m_RecordStatus() != RECORD_STATUS_STOP)
            OnRecordStop();
        steppingAside_.comeBack();
        forgetPicture();
        if (state == SourceState::Ended || state == SourceState::Refused)
            recordsOnceOpen_ = choosesRegionOnceLive_ = reopens_ = false;
    }
    updateCaptureMode();
    Q_EMIT sourceChanged();
    Q_EMIT stateChanged();
    if (isSourceOpen() && std::exchange(recordsOnceOpen_, false))
        OnRecordRecord();
    else if (state == SourceState::Live && std::exchange(choosesRegionOnceLive_, false))
        OnRecordRegionOnStill();
}

bool Recorder::mustChoose() {
    if (isSourceOpen())
        return false;
    recordsOnceOpen_ = true;
    if (source().state() != SourceState::Asking)
        OnChooseSource();
    return true;
}

void Recorder::beginOnceAway(bool goesOn) {
    // Something may have happened since it was asked for.
    const bool isPaused = recording.m_RecordStatus() == RECORD_STATUS_PAUSE;
    if (recording.m_RecordStatus() == RECORD_STATUS_RECORD || goesOn != isPaused || !mayRecord() ||
        !isSourceOpen())
        return;
    const ScreenSourceCapabilities capabilities = source().capabilities();
    const bool isSeen =
        surroundings_.shell.window() && capabilities.asksUser && !capabilities.leavesOwnOut;
    if (!isSeen || !steppingAside_.mustGo([this, goesOn] { beginOnceAway(goesOn); }))
        begin(goesOn);
}

void Recorder::ownWindowCameBack() {
    if (recording.m_RecordStatus() != RECORD_STATUS_RECORD)
        return;
    const double rate = static_cast<double>(recording.u_FPS());
    const auto inDoubt = static_cast<std::uint64_t>(std::ceil(rate * doubtful)) + storedMeanwhile;
    const std::uint64_t count = recording.u_Record_Current_Frame();
    const std::uint64_t dropped = std::min(inDoubt, count - std::min(count, framesBeforeRun_));
    if (recording.array_Images)
        recording.array_Images->resize(static_cast<std::size_t>(count - dropped));
    recording.setU_Record_Current_Frame(count - dropped);
    const std::chrono::duration<double> lost(static_cast<double>(dropped) / rate);
    recording.clock.hold(std::chrono::steady_clock::now() -
                         std::chrono::duration_cast<std::chrono::nanoseconds>(lost));
    OnRecordPause();
}

Image Recorder::fittedToRecording(const Image &grab) {
    const bool records = recording.m_RecordStatus() != RECORD_STATUS_STOP;
    if (!records || !source().capabilities().asksUser || recordedGrab_.isEmpty() ||
        grab.isEmpty() || grab.size() == recordedGrab_) {
        fitted_ = {};
        return grab;
    }
    if (fittedFrom_.sameAs(grab) && fitted_.size() == recordedGrab_)
        return fitted_;
    QImage canvas(recordedGrab_, QImage::Format_RGB32);
    canvas.fill(Qt::black);
    const QSize size = grab.size().scaled(recordedGrab_, Qt::KeepAspectRatio).expandedTo({1, 1});
    QRect place(QPoint(), size);
    place.moveCenter(canvas.rect().center());
    QPainter painter(&canvas);
    painter.drawImage(
        place, grab.toQImage().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter.end();
    fittedFrom_ = grab;
    fitted_ = Image::fromQImage(std::move(canvas));
    return fitted_;
}
