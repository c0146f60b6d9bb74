// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/export_choices.h"
#include "export/frame_timing.h"

#include <QDateTime>
#include <QSize>
#include <QString>

/// The file that was made last, as it can be shown and given away.
struct FinishedFile {
    QString path; ///< Where it is; in the export folder as long as it is not saved.
    QSize pixels;
    double seconds = 0.0; ///< That it plays once.
    QDateTime made;
    QString note; ///< What there is to say about it; may be empty.
    /// What it was made of and how.
    ExportChoices choices;
    frame_timing::Request timing;
    /// It was made before this start, of nothing that is still known.
    bool isFromEarlierStart = false;
};
