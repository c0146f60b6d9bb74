// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/tool_failure.h"

/// A tool's run that was waited for with the event loop at rest.
struct ToolRun {
    /// All that it wrote to its output and its error output; empty when that is not UTF-8.
    QString text;
    ToolExit exit;
};
