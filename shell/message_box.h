// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QString>

/// Gives a message box its texts, the first one in bold. Paths and a tool's own words may be part
/// of them: they are shown as they are, never interpreted as markup, and can be copied.
void setPlainTexts(QMessageBox &box, const QString &message, const QString &informative);
