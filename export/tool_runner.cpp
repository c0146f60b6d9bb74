// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/termination_notice.h"
#include "export/progress_parser.h"
#include "export/tool_process.h"
#include "export/tool_run.h"
#include "platform/display.h"

#include <QCoreApplication>

namespace {

/// How long a wait without an event loop goes without looking for a reason to end.
constexpr int sliceMs = 50;

/// Enough of a tool's error output for the alert's last lines, in bytes. A long run writes
/// megabytes of progress.
constexpr qsizetype errorTail = 64 * 1024;

} // namespace

ToolRun AppDelegate::RunToolReadAllOutput(const QString &toolPath, const QStringList &arguments) {
    if (toolPath.isEmpty())
        return {.text = {}, .exit = {.kind = ToolExit::Kind::Missing}};
    QProcess tool;
    tool_process::prepare(tool, toolPath, arguments);
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(QIODevice::ReadOnly);
    // No limit: an encoder may take as long as it needs. Waiting drains the tool's output.
    while (tool.state() != QProcess::NotRunning) {
        tool.waitForFinished(sliceMs);
        if (TerminationNotice::pending() || displayIsGone())
            Terminate_App();
    }
    const QByteArray output = tool.readAll();
    return {.text = strictUtf8(output).value_or(QString()),
            .exit = tool_process::exitOf(tool, output)};
}

ToolExit AppDelegate::RunToolWithProgress(const QString &toolPath, const QStringList &arguments) {
    setProgressValue(0.0);
    exporting.setU_Type_Progress(PROGRESS_TYPE_GIF);
    exporting.setTerminated(false);
    exporting.toolErrors.clear();
    if (toolPath.isEmpty()) {
        terminated(0, QProcess::NormalExit);
        return {.kind = ToolExit::Kind::Missing};
    }
    QProcess tool;
    tool_process::prepare(tool, toolPath, arguments);
    watchedTool_ = &tool;
    connect(&tool, &QProcess::finished, this,
            [this](int exitCode, QProcess::ExitStatus status) { terminated(exitCode, status); });
    connect(&tool, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        // The only error after which the tool's end is not told.
        if (error == QProcess::FailedToStart)
            terminated(0, QProcess::NormalExit);
    });
    connect(&tool, &QProcess::readyReadStandardOutput, this, [this, &tool] { outData(tool); });
    connect(&tool, &QProcess::readyReadStandardError, this,
            [this, &tool] { errData(tool.readAllStandardError()); });
    tool.start(QIODevice::ReadOnly);
    while (!exporting.terminated())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    // What arrived with the end itself is of no use to the bar, but it may hold the reason.
    exporting.toolErrors += tool.readAllStandardError();
    return tool_process::exitOf(tool, exporting.toolErrors);
}

void AppDelegate::outData(QProcess &tool) {
    // A full pipe would stop the tool; its content says nothing.
    tool.readAllStandardOutput();
}

void AppDelegate::errData(const QByteArray &data) {
    exporting.toolErrors =
        (exporting.toolErrors + data)
            .last(std::min(exporting.toolErrors.size() + data.size(), errorTail));
    if (data.isEmpty() || exporting.u_Type_Progress() != PROGRESS_TYPE_GIF)
        return;
    if (const std::optional<std::uint64_t> seconds = secondsInChunk(data))
        setProgressValue(progressPercentage(*seconds, exporting.i_Orig_Duration_in_Seconds()));
}

void AppDelegate::terminated(int, QProcess::ExitStatus) {
    if (watchedTool_)
        watchedTool_->disconnect(this);
    watchedTool_ = nullptr;
    exporting.setTerminated(true);
    if (exporting.u_Type_Progress() == PROGRESS_TYPE_GIF)
        closeProgressSheet();
}

std::uint64_t AppDelegate::Return_Seconds_From_VOB_Duration_Str(const QString &stamp) {
    return secondsFromStamp(stamp);
}
