// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/tool_process.h"

#include "export/log.h"
#include "export/tool_failure.h"

#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

Q_LOGGING_CATEGORY(logExport, "tovarel.export", QtWarningMsg)

namespace tool_process {

void prepare(QProcess &process, const QString &toolPath, const QStringList &arguments) {
    qCDebug(logExport) << toolPath << arguments;
    process.setProgram(toolPath);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setChildProcessModifier([parent = getpid()] {
        // Between fork and exec: only calls that are safe in a signal handler.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        // The parent may have died before the kernel was asked.
        if (getppid() != parent)
            raise(SIGKILL);
    });
}

ToolExit exitOf(const QProcess &process, QByteArrayView errorOutput) {
    if (process.error() == QProcess::FailedToStart) {
        return {.kind = ToolExit::Kind::NotStarted, .reason = process.errorString()};
    }
    const bool crashed = process.exitStatus() == QProcess::CrashExit;
    return {.kind = crashed ? ToolExit::Kind::Crashed : ToolExit::Kind::Ended,
            .code = process.exitCode(),
            .lastLines = lastMeaningfulLines(errorOutput)};
}

} // namespace tool_process
