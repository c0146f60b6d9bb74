// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/finished_file.h"
#include "export/save_request.h"

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <stop_token>

/// The kind of run that the progress sheet follows: the GIF's last one, one that only prepares an
/// export, the WebP's, one of those that look for a WebP that fits under a limit.
enum ProgressType : std::uint64_t {
    PROGRESS_TYPE_GIF = 0,
    PROGRESS_TYPE_PREPARATION = 1,
    PROGRESS_TYPE_WEBP = 2,
    PROGRESS_TYPE_WEBP_TRIAL = 3,
};

/// State of the exports. `export/` owns the behaviour.
class ExportFields {
public:
    /// Set when the watched tool has ended.
    bool terminated() const { return terminated_; }
    void setTerminated(bool ended) { terminated_ = ended; }

    /// Which job the progress sheet follows.
    ProgressType u_Type_Progress() const { return u_Type_Progress_; }
    void setU_Type_Progress(ProgressType type) { u_Type_Progress_ = type; }

    /// The last time stamp that the watched run is going to report, in seconds of what it writes:
    /// there the bar is full.
    double i_Orig_Duration_in_Seconds() const { return i_Orig_Duration_in_Seconds_; }
    void setI_Orig_Duration_in_Seconds(double seconds) { i_Orig_Duration_in_Seconds_ = seconds; }

    /// Whether the user has cancelled the export that is under way.
    bool exportCancelled() const { return exportCancelled_; }
    void setExportCancelled(bool cancelled) { exportCancelled_ = cancelled; }

    /// What the watched tool wrote to its error output, or the end of it.
    QByteArray toolErrors;

    /// Ends the program's own encoder while it runs.
    std::stop_source encoderStop;

    /// Whether an export is under way, its save panel and alerts included.
    bool exportRuns() const { return exportRuns_; }
    void setExportRuns(bool runs) { exportRuns_ = runs; }

    /// A finished export that has no place of the user's yet.
    std::optional<SaveRequest> unsaved;
    /// The file that was made last, saved or not.
    std::optional<FinishedFile> finished;

private:
    bool terminated_ = false;
    ProgressType u_Type_Progress_ = PROGRESS_TYPE_GIF;
    double i_Orig_Duration_in_Seconds_ = 0.0;
    bool exportCancelled_ = false;
    bool exportRuns_ = false;
};
