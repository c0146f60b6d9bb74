// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

/// "tovarel.export", quiet by default but for warnings: which tools are run with what.
Q_DECLARE_LOGGING_CATEGORY(logExport)
