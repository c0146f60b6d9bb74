// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"

void AppDelegate::resetGIFOptions() {}
void AppDelegate::OnGIFExport(QObject *) {}
