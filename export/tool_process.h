// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/tool_run.h"

#include <QProcess>
#include <QStringList>

/// How every tool is started and how its end is described: the part of running a tool that does not
/// depend on how it is waited for.
namespace tool_process {

/// Readies `process` to run the tool: arguments unchanged (no shell), nothing on its standard
/// input, and the kernel asked to end it when this process ends, in whatever way.
void prepare(QProcess &process, const QString &toolPath, const QStringList &arguments);

/// How the run ended; `process` is not running any more. `errorOutput` is what the tool wrote to
/// its error output, or the end of it.
ToolExit exitOf(const QProcess &process, QByteArrayView errorOutput);

} // namespace tool_process
