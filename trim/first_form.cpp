// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

void AppDelegate::OnCutPlay(QObject *) {}
void AppDelegate::OnCutPause(QObject *) {}
void AppDelegate::OnCutStop(QObject *) {}
void AppDelegate::updateTrimmedRange() {}
