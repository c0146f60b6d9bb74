// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// A finished export that the user is asked to give a place.
struct SaveRequest {
    QString file; ///< The encoder's output; its ending says what it is.
    QString note; ///< What the status line says beside the path and size; may be empty.
    /// It gets a preset name in the folder that was used last, and nobody is asked.
    bool withoutAsking = false;
    /// The file goes to the clipboard once it has its place.
    bool copied = false;
    /// When it was made: the name that is offered says so, however late it is saved.
    QDateTime made = QDateTime::currentDateTime();
};

/// What users call such a file: "GIF", "WebP", "MP4".
QString kindOf(const SaveRequest &request);
