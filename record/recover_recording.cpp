// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/left_recording.h"
#include "record/log.h"
#include "record/recorder.h"
#include "record/recording_loader.h"
#include "shell/file_calls.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

#include <chrono>
#include <utility>

namespace {

/// A clock that has already counted this long, and is held.
RecordingClock clockThatCounted(double seconds) {
    using TimePoint = RecordingClock::TimePoint;
    RecordingClock clock;
    clock.run(TimePoint());
    clock.hold(TimePoint() + std::chrono::duration_cast<TimePoint::duration>(
                                 std::chrono::duration<double>(seconds)));
    return clock;
}

} // namespace

void Recorder::noteRecording() {
    const RecordingCounts counts = recordingCounts();
    const RecordingNote note{.frames = recording.array_Images->size(),
                             .size = recording.array_Images->front().size(),
                             .seconds = counts.passedSeconds,
                             .rate = recording.exactRate()};
    if (!left_recording::writeNote(surroundings_.shell.s_Output_Folder(), note))
        qCWarning(logRecord, "the recording could not be noted: a later start will not offer it");
}

void Recorder::endedByUser() {
    if (!isExported_)
        return;
    left_recording::removeNote(surroundings_.shell.s_Output_Folder());
    left_recording::removeAside(surroundings_.shell.s_Output_Folder());
}

bool Recorder::mayBringBackPrevious() const {
    // Frames that are in memory only would be lost.
    const bool busy = recording.m_RecordStatus() != RECORD_STATUS_STOP || isCountingDown() ||
                      saveDue_ || isSavingRecording() || isOpeningRecording() || hasMissingFrames_;
    return !busy && left_recording::isThere(
                        working_folders::previousFolder(surroundings_.shell.s_Output_Folder()));
}

void Recorder::OnRecordPrevious() {
    // Whatever a dialog covers can still be pressed by assistive technology.
    if (!mayBringBackPrevious() || surroundings_.alerts.isAsking())
        return;
    const QString &folder = surroundings_.shell.s_Output_Folder();
    const QString aside = working_folders::previousFolder(folder);
    const std::optional<RecordingNote> note = left_recording::find(aside);
    working_folders::ensureFolder(folder);
    if (!note || exchangeFolders(QFileInfo(folder).canonicalFilePath(), aside) != 0) {
        surroundings_.showStatus(qtTrId("IDD_PREVIOUS_GONE"));
        return;
    }
    isExported_ = false;
    bringsBack_ = true;
    Q_EMIT began();
    openRecording(*note);
}

void Recorder::offerRecording(const RecordingNote &note) {
    const QDateTime saved =
        QFileInfo(left_recording::noteFile(surroundings_.shell.s_Output_Folder())).lastModified();
    surroundings_.alerts.ask({.message = qtTrId("IDD_RECOVER_QUESTION"),
                              .detail = qtTrId("IDD_RECOVER_DETAIL", static_cast<int>(note.frames))
                                            .arg(QLocale().toString(saved, QLocale::ShortFormat),
                                                 number_text::decimal(note.seconds)),
                              .accept = qtTrId("IDD_RECOVER_OPEN"),
                              .destroy = qtTrId("IDD_RECOVER_DELETE"),
                              .cancel = {}},
                             [this, note](Answer answer) {
                                 if (answer == Answer::Accept)
                                     openRecording(note);
                                 else
                                     working_folders::removeContent(
                                         surroundings_.shell.s_Output_Folder());
                             });
}

void Recorder::openRecording(const RecordingNote &note) {
    surroundings_.progress.show(qtTrId("IDD_RECOVER_LOADING"));
    surroundings_.progress.setRange(0.0, static_cast<double>(note.frames));
    surroundings_.progress.setValue(0.0);
    loader_ = std::make_unique<RecordingLoader>(surroundings_.shell.s_Output_Folder(), note,
                                                recording.store,
                                                [this](std::uint64_t done) { frameLoaded(done); });
}

void Recorder::frameLoaded(std::uint64_t done) {
    surroundings_.progress.setValue(static_cast<double>(done));
    if (!loader_->hasEnded())
        return;
    // Its own report is on the stack.
    RecordingLoader *loader = loader_.release();
    loader->deleteLater();
    surroundings_.progress.close();
    recording.store.rest();
    const bool broughtBack = std::exchange(bringsBack_, false);
    if (loader->hasFailed()) {
        // The frames in memory are those of the other one.
        const QString &folder = surroundings_.shell.s_Output_Folder();
        if (broughtBack)
            exchangeFolders(QFileInfo(folder).canonicalFilePath(),
                            working_folders::previousFolder(folder));
        surroundings_.alerts.run(AlertKind::Error,
                                 qtTrId("IDD_RECOVER_FAILED").arg(loader->failedFile()));
        return;
    }
    takeRecording(loader->takeFrames(), loader->note());
    Q_EMIT recordingReady();
}

void Recorder::takeRecording(std::vector<Image> frames, const RecordingNote &note) {
    recording.setU_Record_Current_Frame(frames.size());
    recording.array_Images = std::move(frames);
    recording.setExactRate(note.rate);
    recording.setI_Actual_FPS_while_Recording(0);
    recording.setU_number_of_seconds(0);
    recording.clock = clockThatCounted(note.seconds);
    surroundings_.showStatus(
        qtTrId("IDD_RECORDING_SAVED")
            .arg(number_text::count(note.frames), number_text::rate(note.rate)));
}
