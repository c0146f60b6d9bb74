// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

void AppDelegate::OnRecordFullScreen(QObject *) {}
void AppDelegate::OnRecordRegion(QObject *) {}
void AppDelegate::endRegionOverlay() {}
