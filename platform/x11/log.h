// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

/// "tovarel.x11", quiet by default: QT_LOGGING_RULES="tovarel.x11.debug=true" shows the X errors
/// that are dropped on purpose.
Q_DECLARE_LOGGING_CATEGORY(logX11)
