// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

void AppDelegate::OnRecordRecord(QObject *) {}
void AppDelegate::OnRecordPause(QObject *) {}
void AppDelegate::OnRecordStop(QObject *) {}
void AppDelegate::OnRecordFPS(QObject *) {}
void AppDelegate::restartCaptureTimer() {}
void AppDelegate::restartOneSecondTimer() {}
void AppDelegate::stopRecordTimers() {}
bool AppDelegate::isSavingRecording() const { return false; }
