// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/log.h"
#include "record/recorder.h"
#include "record/save/frame_saver.h"
#include "shell/number_text.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"

#include <QDir>

void Recorder::saveRecording() {
    const std::size_t frames = recording.array_Images ? recording.array_Images->size() : 0;
    surroundings_.progress.show(qtTrId("IDD_SAVING_RECORDING"));
    surroundings_.progress.setRange(0.0, static_cast<double>(frames));
    surroundings_.progress.setValue(0.0);
    if (frames == 0) {
        surroundings_.progress.close();
        saveDue_ = false;
        Q_EMIT stateChanged();
        surroundings_.showStatus(qtTrId("IDD_NOTHING_RECORDED"));
        return;
    }
    // It may have been deleted since the start.
    working_folders::ensureFolder(surroundings_.shell.s_Output_Folder());
    frameSaver_ =
        std::make_unique<FrameSaver>(*recording.array_Images, surroundings_.shell.s_Output_Folder(),
                                     [this](std::uint64_t done) { frameReported(done); });
    saveDue_ = false;
}

void Recorder::keepForNextStart(const std::function<bool()> &givesUp) {
    if (recording.m_RecordStatus() != RECORD_STATUS_STOP)
        endRecording();
    else if (!saveDue_ && !isSavingRecording())
        return;
    const auto &frames = recording.array_Images;
    if (!isSavingRecording() && frames && !frames->empty()) {
        working_folders::ensureFolder(surroundings_.shell.s_Output_Folder());
        frameSaver_ = std::make_unique<FrameSaver>(*frames, surroundings_.shell.s_Output_Folder(),
                                                   [](std::uint64_t) {});
    }
    if (isSavingRecording() && frameSaver_->finish(givesUp))
        noteRecording();
}

void Recorder::OnSaveAgain() {
    // Whatever a sheet covers can still be pressed by assistive technology.
    const bool busy = isSavingRecording() || recording.m_RecordStatus() != RECORD_STATUS_STOP;
    if (busy || !recording.array_Images || recording.array_Images->empty())
        return;
    Q_EMIT aboutToSaveAgain();
    // All of it again: what was written may have been deleted, and takes room meanwhile.
    working_folders::removeContent(surroundings_.shell.s_Output_Folder());
    hasMissingFrames_ = false;
    saveDue_ = true;
    Q_EMIT stateChanged();
    saveRecording();
}

void Recorder::frameReported(std::uint64_t done) {
    surroundings_.progress.setValue(static_cast<double>(done));
    if (done < frameSaver_->count())
        return;
    // Its own report is on the stack.
    FrameSaver *saver = frameSaver_.release();
    saver->deleteLater();
    surroundings_.progress.close();
    showSaveResult(*saver);
    Q_EMIT stateChanged();
    Q_EMIT recordingReady();
}

void Recorder::showSaveResult(const FrameSaver &saver) {
    if (saver.missing() == 0) {
        noteRecording();
        const QString frames = number_text::count(saver.count());
        const QString rate = number_text::rate(recording.exactRate());
        surroundings_.showStatus(fellBehind(recordingCounts(), recording.u_FPS())
                                     ? qtTrId("IDD_RECORDING_BEHIND")
                                           .arg(frames, QString::number(recording.u_FPS()), rate)
                                     : qtTrId("IDD_RECORDING_SAVED").arg(frames, rate));
        return;
    }
    const QString text =
        qtTrId("IDD_FRAMES_MISSING", static_cast<int>(saver.count()))
            .arg(number_text::count(saver.missing()),
                 QDir::toNativeSeparators(surroundings_.shell.s_Output_Folder()), saver.reason());
    qCWarning(logRecord).noquote() << text;
    surroundings_.showStatus(text);
    hasMissingFrames_ = true;
}
