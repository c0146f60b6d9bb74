// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QWidget;
class Window_Progress;

/// The progress sheet of the job that is under way: at most one, on the main window. The job shows
/// it, moves its bar and takes it down. Where there is none, everything but `show` does nothing,
/// apart from what `valueChanged` tells.
class ProgressSheet : public QObject {
    Q_OBJECT

public:
    /// The strip of the main window that sheets hang from, borrowed. Without one none is shown.
    void hangFrom(QWidget &anchor) { anchor_ = &anchor; }

    /// The sheet while one is shown; null otherwise. The main window owns the widget.
    Window_Progress *windowProgress() const { return windowProgress_; }

    /// Attaches a fresh sheet with this caption, in place of any earlier one; its bar runs from 0
    /// to 100.
    void show(const QString &caption);
    /// Another caption for what the job does from now on.
    void setCaption(const QString &caption);
    /// Lets the user ask for the job to be cancelled.
    void offerCancel();
    void setRange(double minimum, double maximum);
    /// Moves the bar; values beyond its range show as empty or full, one that is not finite moves
    /// nothing.
    void setValue(double value);
    /// What the bar says; "%p" in it is the percentage, which is all that it says at first.
    void setText(const QString &format);
    /// Processes events other than the user's until the sheet is on screen, then paints it: for
    /// work that is about to block the main thread.
    void paint();
    /// Takes the sheet down, if one is up; it deletes itself later.
    void close();

Q_SIGNALS:
    /// The job has come that far, with a sheet or without.
    void valueChanged(double value);
    /// The user asked the window manager to close the window beneath the sheet.
    void parentCloseRequested();
    /// The user asked for the job to be cancelled: at most once for each sheet.
    void cancelled();

private:
    QWidget *anchor_ = nullptr;
    Window_Progress *windowProgress_ = nullptr;
};
