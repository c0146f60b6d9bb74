// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/tool_failure.h"

#include <QStringList>

#include <cstring>

namespace {

constexpr qsizetype lines = 6; // enough for the cause and the sentences after it that only say so
constexpr qsizetype lineLength = 200; // characters; what fits an alert without scrolling

bool isProgress(const QString &line) {
    return line.startsWith(QLatin1String("frame=")) && line.contains(QLatin1String("time="));
}

QString cleaned(QString line) {
    for (QChar &c : line)
        if (!c.isPrint() && !c.isSurrogate())
            c = QLatin1Char(' ');
    line = line.simplified();
    return line.size() > lineLength ? line.left(lineLength) + QChar(u'…') : line;
}

QString withLines(const QString &sentence, const ToolExit &exit) {
    return exit.lastLines.isEmpty() ? sentence : sentence + QStringLiteral("\n\n") + exit.lastLines;
}

} // namespace

QString lastMeaningfulLines(QByteArrayView errorOutput) {
    // The encoder overwrites its progress line by returning the carriage.
    QString text = QString::fromUtf8(errorOutput);
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QStringList kept;
    const QStringList all = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (auto line = all.rbegin(); line != all.rend() && kept.size() < lines; ++line) {
        const QString readable = cleaned(*line);
        if (!readable.isEmpty() && !isProgress(readable))
            kept.prepend(readable);
    }
    return kept.join(QLatin1Char('\n'));
}

QString toolFailureText(const QString &toolName, const ToolExit &exit) {
    switch (exit.kind) {
    case ToolExit::Kind::Missing:
        return qtTrId("IDD_TOOL_MISSING").arg(toolName);
    case ToolExit::Kind::NotStarted:
        return qtTrId("IDD_TOOL_NOT_STARTED").arg(toolName, exit.reason);
    case ToolExit::Kind::Crashed:
        return withLines(qtTrId("IDD_TOOL_CRASHED")
                             .arg(toolName, QString::number(exit.code),
                                  QString::fromLocal8Bit(strsignal(exit.code))),
                         exit);
    case ToolExit::Kind::Cancelled:
        return qtTrId("IDD_EXPORT_CANCELLED");
    case ToolExit::Kind::Ended:
        break;
    }
    return withLines(qtTrId("IDD_TOOL_FAILED").arg(toolName, QString::number(exit.code)), exit);
}

QString refusedSizeText(const QString &toolName, const ToolExit &exit, const QString &width,
                        const QString &height) {
    const QString text = toolFailureText(toolName, exit);
    if (exit.kind != ToolExit::Kind::Ended)
        return text;
    return text + QStringLiteral("\n\n") + qtTrId("IDD_REFUSED_SIZE").arg(width, height);
}

QString noResultText(const QString &toolName, const QString &file, const ToolExit &exit) {
    return withLines(qtTrId("IDD_TOOL_NO_RESULT").arg(toolName, file), exit);
}
