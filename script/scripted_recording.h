// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/exporter.h"
#include "record/recorder.h"
#include "record/view_record_preview.h"
#include "region/region_chooser.h"
#include "script/command_line.h"
#include "script/terminal.h"
#include "shell/surroundings.h"
#include "trim/trim_editor.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

class ScreenSource;

/// One recording without a window, from the first grab to the finished file: the desks at work in
/// folders of their own, so that it can be made beside a running window. What there is to say goes
/// to the error output, the finished file's path to the output.
class ScriptedRecording : public QObject {
    Q_OBJECT

public:
    ScriptedRecording(command_line::Recording wanted, std::unique_ptr<ScreenSource> source);

    /// Makes it, while events are processed; what the program ends with.
    command_line::Status run();

    /// The user wants it to end: what was recorded is made into a file. The second time that is
    /// given up, too.
    void interrupt();

private:
    void listen();
    void end(command_line::Status status);
    /// Says why there is none.
    void fail(command_line::Status status, const QString &text);
    /// What the desktop's dialog came to, or its end of sharing.
    void followSource();
    /// The first grab tells how large the desktop is.
    void aimOnce();
    /// The wanted part of the desktop, or of the monitor that was chosen, whose size this is, in
    /// pixels; or why there is none.
    std::optional<QString> aim(QSize desktop);
    std::optional<QString> aimAt(const QRect &part, QSize desktop);
    void beginIn(std::chrono::milliseconds time);
    void begin();
    void follow();
    void count();
    void finish();
    void makeFile();
    /// Gives the finished file its place.
    void place(const SaveRequest &made);
    QString target(const SaveRequest &made) const;

    const command_line::Recording wanted_;
    Terminal terminal_;
    QTemporaryDir folder_;
    Surroundings surroundings_;
    RegionChooser chooser_{surroundings_};
    Recorder recorder_;
    TrimEditor editor_{surroundings_, recorder_};
    Exporter exporter_{surroundings_, recorder_, editor_};
    View_Record_Preview preview_; // never shown: its draw step makes the frames

    bool aimed_ = false;
    bool stopped_ = false;
    bool making_ = false;
    QElapsedTimer waited_;
    std::chrono::steady_clock::time_point answered_; ///< When the desktop's dialog was.
    QTimer clock_;                                   // until the beginning, then until the end
    QTimer display_;
    std::optional<command_line::Status> status_;
};
