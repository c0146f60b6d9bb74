// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/tabs.h"
#include "record/left_recording.h"
#include "record/recording_loader.h"
#include "shell/question.h"
#include "shell/tab_view.h"
#include "ui_MainWindow.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

#include <chrono>

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

bool AppDelegate::isOpeningRecording() const { return loader_ != nullptr; }

void AppDelegate::noteRecording() {
    const RecordingCounts counts = recordingCounts();
    const RecordingNote note{.frames = recording.array_Images->size(),
                             .size = recording.array_Images->front().size(),
                             .seconds = counts.passedSeconds,
                             .rate = recording.exactRate()};
    if (!left_recording::writeNote(shell.s_Output_Folder(), note))
        qWarning("the recording could not be noted: a later start will not offer it");
}

void AppDelegate::forgetRecording() { left_recording::removeNote(shell.s_Output_Folder()); }

void AppDelegate::offerRecording(const RecordingNote &note) {
    const QLocale locale;
    const QDateTime saved =
        QFileInfo(left_recording::noteFile(shell.s_Output_Folder())).lastModified();
    surroundings.alerts.ask({.message = qtTrId("IDD_RECOVER_QUESTION"),
                             .detail = qtTrId("IDD_RECOVER_DETAIL")
                                           .arg(locale.toString(saved, QLocale::ShortFormat),
                                                locale.toString(qulonglong{note.frames}),
                                                locale.toString(note.seconds, 'f', 1)),
                             .accept = qtTrId("IDD_RECOVER_OPEN"),
                             .destroy = qtTrId("IDD_RECOVER_DELETE"),
                             .cancel = {}},
                            [this, note](Answer answer) {
                                if (answer == Answer::Accept)
                                    openRecording(note);
                                else
                                    RemoveAllContentInFolder(shell.s_Output_Folder());
                            });
}

void AppDelegate::openRecording(const RecordingNote &note) {
    surroundings.progress.show(qtTrId("IDD_RECOVER_LOADING"));
    surroundings.progress.setRange(0.0, static_cast<double>(note.frames));
    surroundings.progress.setValue(0.0);
    loader_ = std::make_unique<RecordingLoader>(shell.s_Output_Folder(), note, recording.store,
                                                [this](std::uint64_t done) { frameLoaded(done); });
}

void AppDelegate::frameLoaded(std::uint64_t done) {
    surroundings.progress.setValue(static_cast<double>(done));
    if (!loader_->hasEnded())
        return;
    // Its own report is on the stack.
    RecordingLoader *loader = loader_.release();
    loader->deleteLater();
    surroundings.progress.close();
    recording.store.rest();
    if (loader->hasFailed()) {
        surroundings.alerts.run(AlertKind::Error,
                                qtTrId("IDD_RECOVER_FAILED").arg(loader->failedFile()));
        return;
    }
    takeRecording(loader->takeFrames(), loader->note());
    shell.tabviewMain()->selectTabViewItemAtIndex(tabs::cut);
}

void AppDelegate::takeRecording(std::vector<Image> frames, const RecordingNote &note) {
    recording.setU_Record_Current_Frame(frames.size());
    recording.array_Images = std::move(frames);
    recording.setExactRate(note.rate);
    recording.setI_Actual_FPS_while_Recording(0);
    recording.setU_number_of_seconds(0);
    recording.clock = clockThatCounted(note.seconds);
    surroundings.showStatus(
        qtTrId("IDD_RECORDING_SAVED").arg(note.frames).arg(recording.u_Record_Current_FPS()));
}
