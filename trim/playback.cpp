// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "shell/commands.h"
#include "trim/range_rules.h"
#include "trim/view_cut_preview.h"
#include "trim/view_cut_range.h"
#include "ui_MainWindow.h"

#include <QLocale>

namespace {

constexpr int secondsDecimals = 2; // a frame at 60 per second still counts

/// What an export would hold, in the user's words.
QString textOfKept(std::optional<range_rules::Kept> kept, double rate) {
    if (!kept)
        return qtTrId("IDD_RANGE_EMPTY");
    const QString seconds =
        QLocale().toString(static_cast<double>(kept->count()) / rate, 'f', secondsDecimals);
    if (kept->count() == 1)
        return qtTrId("IDD_RANGE_ONE").arg(kept->first).arg(seconds);
    return qtTrId("IDD_RANGE_HOLDS")
        .arg(kept->first)
        .arg(kept->last)
        .arg(kept->count())
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
    trim.timerPlayRefresh = std::make_unique<RepeatingTimer>(1.0 / recording.exactRate(),
                                                             [this] { TimerRefreshPlayRoutine(); });
    ui->viewCutRange->update();
}

void AppDelegate::TimerRefreshPlayRoutine() {
    trim.setUCurrentFrame(trim.uCurrentFrame() + 1);
    const auto kept = keptRange();
    if (!kept || trim.uCurrentFrame() > kept->last)
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
    trim.setPreviewedEnd(RangeEnd::First);
    ui->viewCutPreview->update();
    ui->viewCutRange->update();
}

void AppDelegate::keepWholeRecording() {
    trim.setF_Cut_Percent_Menor(0.0f);
    trim.setF_Cut_Percent_Maior(100.0f);
    trim.setPreviewedEnd(RangeEnd::First);
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

std::optional<range_rules::Kept> AppDelegate::keptRange() const {
    return range_rules::keptFrames(trim.uFirstFrame(), trim.uLastFrame(),
                                   recording.u_Record_Current_Frame());
}

void AppDelegate::showTrimmedRange(bool recordingExists) {
    QString text;
    if (recordingExists)
        text = textOfKept(keptRange(), recording.exactRate());
    // Every drawing comes by here: the label is laid out anew only when it says something else.
    if (ui->labelCutRange->text() != text)
        ui->labelCutRange->setText(text);
}
