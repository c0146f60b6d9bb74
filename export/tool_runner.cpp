// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/exporter.h"
#include "export/progress_parser.h"
#include "export/tool_process.h"
#include "export/tool_run.h"
#include "shell/surroundings.h"

#include <QCoreApplication>

namespace {

/// Enough of a tool's error output for the alert's last lines, in bytes. A long run writes
/// megabytes of progress.
constexpr qsizetype errorTail = qsizetype{64} * 1024;

} // namespace

ToolRun Exporter::RunToolReadAllOutput(const QString &toolPath, const QStringList &arguments) {
    exporting.setU_Type_Progress(PROGRESS_TYPE_PREPARATION);
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    QByteArray output;
    connect(&tool, &QProcess::readyReadStandardOutput, this,
            [&tool, &output] { output += tool.readAll(); });
    const std::optional<ToolExit> refused = runWhileEventsTurn(tool, toolPath, arguments);
    if (refused)
        return {.text = {}, .exit = *refused};
    output += tool.readAll();
    return {.text = strictUtf8(output).value_or(QString()),
            .exit = tool_process::exitOf(tool, output)};
}

ToolExit Exporter::RunToolWithProgress(const QString &toolPath, const QStringList &arguments,
                                       ProgressType type, const QString &workingFolder) {
    surroundings_.progress.setValue(0.0);
    exporting.setU_Type_Progress(type);
    exporting.toolErrors.clear();
    QProcess tool;
    if (!workingFolder.isEmpty())
        tool.setWorkingDirectory(workingFolder);
    connect(&tool, &QProcess::readyReadStandardOutput, this, [this, &tool] { outData(tool); });
    connect(&tool, &QProcess::readyReadStandardError, this,
            [this, &tool] { errData(tool.readAllStandardError()); });
    const std::optional<ToolExit> refused = runWhileEventsTurn(tool, toolPath, arguments);
    if (refused)
        return *refused;
    // What arrived with the end itself is of no use to the bar, but it may hold the reason.
    exporting.toolErrors += tool.readAllStandardError();
    return tool_process::exitOf(tool, exporting.toolErrors);
}

std::optional<ToolExit> Exporter::runWhileEventsTurn(QProcess &tool, const QString &toolPath,
                                                     const QStringList &arguments) {
    exporting.setTerminated(false);
    if (toolPath.isEmpty() || exporting.exportCancelled()) {
        terminated(0, QProcess::NormalExit);
        return ToolExit{.kind = toolPath.isEmpty() ? ToolExit::Kind::Missing
                                                   : ToolExit::Kind::Cancelled};
    }
    tool_process::prepare(tool, toolPath, arguments);
    watchedTool_ = &tool;
    connect(&tool, &QProcess::finished, this,
            [this](int exitCode, QProcess::ExitStatus status) { terminated(exitCode, status); });
    connect(&tool, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        // The only error after which no end is reported.
        if (error == QProcess::FailedToStart)
            terminated(0, QProcess::NormalExit);
    });
    tool.start(QIODevice::ReadOnly);
    while (!exporting.terminated())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return std::nullopt;
}

void Exporter::cancelExport() {
    exporting.setExportCancelled(true);
    exporting.encoderStop.request_stop();
    // Nothing that it could still write is wanted.
    if (watchedTool_)
        watchedTool_->kill();
}

void Exporter::outData(QProcess &tool) {
    // A full pipe would stop the tool; its content says nothing.
    tool.readAllStandardOutput();
}

void Exporter::errData(const QByteArray &data) {
    exporting.toolErrors =
        (exporting.toolErrors + data)
            .last(std::min(exporting.toolErrors.size() + data.size(), errorTail));
    if (data.isEmpty() || exporting.terminated())
        return;
    const ProgressType type = exporting.u_Type_Progress();
    const bool isWebP = type == PROGRESS_TYPE_WEBP || type == PROGRESS_TYPE_WEBP_TRIAL;
    const std::optional<double> seconds = isWebP ? secondsOfAddedFrame(data) : secondsInChunk(data);
    if (seconds)
        surroundings_.progress.setValue(
            progressPercentage(*seconds, exporting.i_Orig_Duration_in_Seconds()));
}

void Exporter::terminated(int, QProcess::ExitStatus) {
    if (watchedTool_)
        watchedTool_->disconnect(this);
    watchedTool_ = nullptr;
    exporting.setTerminated(true);
    const ProgressType type = exporting.u_Type_Progress();
    // Others are followed by another run.
    if (type == PROGRESS_TYPE_GIF || type == PROGRESS_TYPE_WEBP)
        surroundings_.progress.close();
}
