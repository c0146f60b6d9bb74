// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

/// "tovarel.record", quiet by default but for warnings: what a recording came to.
Q_DECLARE_LOGGING_CATEGORY(logRecord)
