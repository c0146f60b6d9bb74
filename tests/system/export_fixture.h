// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/app_delegate.h"
#include "ui_MainWindow.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

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
    std::vector<Alert> alerts;
    QStringList panels; ///< Title and offered name of each save panel, joined by a bar.

private:
    void answer();

    QTimer timer_;
    QPointer<QObject> answered_; // the panel that has had its answer
};

/// The controller on a recording of real frame files, in a folder whose name is full of traps.
class ExportTest : public testing::Test {
protected:
    ExportTest();
    ~ExportTest() override;

    /// Writes `count` frames of 64 by 48 pixels, each of one colour of its own, chooses all of them
    /// and enters the GIF tab.
    void record(int count);
    static QColor colourOf(int frame);
    /// An executable shell script that stands in for a tool; its last argument is `$last`.
    QString standIn(const QByteArray &script);
    QString frameFile(int number) const;
    QString place(const char *name) const { return folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir folder;
    QString documents;
    AppDelegate controller;
    Ui::MainWindow &ui;
    Answerer answers;

private:
    int standIns_ = 0;
};

QByteArray contentOf(const QString &path);
void put(const QString &path, const QByteArray &content);
