// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/controller/controller_fixture.h"
#include "tests/support/files.h"

#include "export/frame_timing.h"
#include "export/gif_preset.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

/// Answers the alerts and save panels that an export shows, and keeps what they said. Anything else
/// that is modal is left alone.
class Answerer : public QObject {
public:
    struct Alert {
        QString title;
        QString text;
    };

    Answerer();

    QString savePath; ///< Where the save panel is sent; it is cancelled when this is empty.
    std::optional<QString> savePathAfter; ///< Where the next one is sent instead.
    std::vector<Alert> alerts;
    QStringList panels; ///< Title and offered name of each save panel, joined by a bar.
    QString folder;     ///< What the last save panel showed.
    /// Which button answers a question, and how many there were.
    QMessageBox::ButtonRole choice = QMessageBox::DestructiveRole;
    int questions = 0;

private:
    void answer();

    QTimer timer_;
    QPointer<QObject> answered_; // the panel that has had its answer
};

/// Cancels an export once the moment has come, by the button of its sheet or by a key.
class Canceller : public QObject {
public:
    Canceller(const AppDelegate &controller,
              std::function<bool(const Window_Progress &sheet)> isTheMoment, bool byKey);

    QElapsedTimer since; ///< valid from then on

private:
    QTimer timer_;
};

/// The controller on a recording of real frame files, in a folder whose name is full of traps.
class ExportTest : public ControllerFixture {
protected:
    /// The quality is Classic at first: most tests are about the runs of tools.
    ExportTest();

    /// Writes `count` frames of 64 by 48 pixels, each of one colour of its own, chooses all of them
    /// and enters the GIF tab.
    void record(int count);
    static QColor colourOf(int frame);
    /// Pictures of which no two pixels are alike, so that they cost an encoder time and bytes.
    static std::vector<QImage> noise(int count, QSize size);
    void choose(GifPreset preset);
    /// A size of its own, whose sides do not follow each other.
    void chooseSize(const QString &width, const QString &height);
    /// Makes it a recording of this exact rate, and chooses a rate (0 for the recording's own) and
    /// a speed: what is to become of that many frames.
    frame_timing::Request chooseTimes(int frames, double recorded, int rate, double speed);
    /// Makes a file of at most so many megabytes by the button, with all that is asked on the way:
    /// its size in bytes, 0 when there is none.
    qint64 makeUnder(QPushButton *button, const QString &limit, const char *name);
    /// An executable shell script that stands in for a tool; its last argument is `$last`.
    QString standIn(const QByteArray &script);
    /// Waits until neither a question nor an export is under way.
    bool finish();
    QString place(const char *name) const { return folder.filePath(QString::fromLatin1(name)); }
    QString exportFile(const char *name) const {
        return controller.shell.s_Export_Folder() + u'/' + QLatin1String(name);
    }
    /// What a program says that gets the words of this command line, and then these.
    static QByteArray run(const char *command, const QStringList &more);

    AppDelegate &controller = *delegate;
    Ui::MainWindow &ui = *delegate->ui;
    Answerer answers;

private:
    int standIns_ = 0;
};
