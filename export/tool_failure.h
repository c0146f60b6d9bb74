// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/tool_run.h"

#include <QByteArrayView>
#include <QString>

/// The end of a tool's error output as a person can use it: a few lines, none of them empty, cut
/// short or a progress line; bytes that are not UTF-8 are replaced.
QString lastMeaningfulLines(QByteArrayView errorOutput);

/// The message for a run that did not succeed: the tool's name, how it ended, what it wrote.
QString toolFailureText(const QString &toolName, const ToolExit &exit);

/// The same for a run that was given a size; the size too, where it may be the reason.
QString refusedSizeText(const QString &toolName, const ToolExit &exit, const QString &width,
                        const QString &height);

/// The message when a tool ended well and its result is missing or empty.
QString noResultText(const QString &toolName, const QString &file, const ToolExit &exit);
