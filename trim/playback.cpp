// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/commands.h"
#include "trim/range_rules.h"
#include "trim/view_cut_preview.h"
#include "trim/view_cut_range.h"
#include "ui_MainWindow.h"

#include <QLocale>

#include <algorithm>

namespace {

constexpr int secondsDecimals = 2; // a frame at 60 per second still counts

/// The rate that a recording is played at, in frames per second. One that was too short to be
/// measured has the rate 0 and plays at 1.
std::uint64_t playedRate(const RecordingFields &recording) {
    return std::max<std::uint64_t>(recording.u_Record_Current_FPS(), 1);
}

/// What an export would hold, in the user's words.
QString textOfHeld(std::optional<range_rules::Held> held, std::uint64_t rate) {
    if (!held)
        return qtTrId("IDD_RANGE_EMPTY");
    const QString seconds = QLocale().toString(
        static_cast<double>(held->count()) / static_cast<double>(rate), 'f', secondsDecimals);
    if (held->count() == 1)
        return qtTrId("IDD_RANGE_ONE").arg(held->first).arg(seconds);
    return qtTrId("IDD_RANGE_HOLDS")
        .arg(held->first)
        .arg(held->last)
        .arg(held->count())
        .arg(seconds);
}

} // namespace

void AppDelegate::connectTrimControls() {
    connect(ui->btnCutPlay, &QAbstractButton::clicked, this, [this] { OnCutPlay(ui->btnCutPlay); });
    connect(ui->btnCutPause, &QAbstractButton::clicked, this,
            [this] { OnCutPause(ui->btnCutPause); });
    connect(ui->btnCutStop, &QAbstractButton::clicked, this, [this] { OnCutStop(ui->btnCutStop); });
    connect(ui->menuitemActionCutPlay, &QAction::triggered, this,
            &AppDelegate::OnMenuActionCutPlay);
    connect(ui->menuitemActionCutPause, &QAction::triggered, this,
            &AppDelegate::OnMenuActionCutPause);
    connect(ui->menuitemActionCutStop, &QAction::triggered, this,
            &AppDelegate::OnMenuActionCutStop);
    ui->viewCutPreview->setAccessibleName(qtTrId("IDD_CUT_PREVIEW"));
    ui->viewCutRange->setAccessibleName(qtTrId("IDD_CUT_RANGE"));
}

void AppDelegate::enablePlayback(bool play, bool pause, bool stop) {
    enableCommand(ui->btnCutPlay, ui->menuitemActionCutPlay, play);
    enableCommand(ui->btnCutPause, ui->menuitemActionCutPause, pause);
    enableCommand(ui->btnCutStop, ui->menuitemActionCutStop, stop);
}

void AppDelegate::OnCutPlay(QObject *) {
    enablePlayback(false, true, true);
    if (trim.m_PlayStatus() == PLAY_STATUS_STOP)
        trim.setUCurrentFrame(trim.uFirstFrame());
    trim.setM_PlayStatus(PLAY_STATUS_PLAY);
    trim.timerPlayRefresh.reset();
    const double interval = static_cast<double>(1.0f / static_cast<float>(playedRate(recording)));
    trim.timerPlayRefresh =
        std::make_unique<RepeatingTimer>(interval, [this] { TimerRefreshPlayRoutine(); });
    ui->viewCutRange->update();
}

void AppDelegate::TimerRefreshPlayRoutine() {
    trim.setUCurrentFrame(trim.uCurrentFrame() + 1);
    if (trim.uCurrentFrame() >= trim.uLastFrame())
        trim.setUCurrentFrame(trim.uFirstFrame());
    ui->viewCutPreview->update();
    ui->viewCutRange->update();
}

void AppDelegate::OnCutPause(QObject *) {
    trim.timerPlayRefresh.reset();
    enablePlayback(true, false, true);
    trim.setM_PlayStatus(PLAY_STATUS_PAUSE);
    ui->viewCutRange->update();
}

void AppDelegate::OnCutStop(QObject *) {
    trim.timerPlayRefresh.reset();
    enablePlayback(true, false, false);
    trim.setM_PlayStatus(PLAY_STATUS_STOP);
    ui->viewCutRange->update();
}

void AppDelegate::togglePlayback() {
    if (ui->btnCutPause->isEnabled())
        OnCutPause(this);
    else if (ui->btnCutPlay->isEnabled())
        OnCutPlay(this);
}

void AppDelegate::updateTrimmedRange() {
    const std::uint64_t frames = recording.u_Record_Current_Frame();
    trim.setUFirstFrame(range_rules::frameAt(trim.f_Cut_Percent_Menor(), frames));
    trim.setULastFrame(range_rules::frameAt(trim.f_Cut_Percent_Maior(), frames));
}

std::uint64_t AppDelegate::framesInTrimmedRange() const {
    const auto held = range_rules::heldByExport(trim.uFirstFrame(), trim.uLastFrame(),
                                                recording.u_Record_Current_Frame());
    return held ? held->count() : 0;
}

void AppDelegate::showTrimmedRange(bool recordingExists) {
    QString text;
    if (recordingExists)
        text = textOfHeld(range_rules::heldByExport(trim.uFirstFrame(), trim.uLastFrame(),
                                                    recording.u_Record_Current_Frame()),
                          playedRate(recording));
    // Every drawing comes by here: the label is laid out anew only when it says something else.
    if (ui->labelCutRange->text() != text)
        ui->labelCutRange->setText(text);
}
