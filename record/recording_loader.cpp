// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recording_loader.h"

#include "shell/working_folders.h"

#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>

#include <sys/stat.h>

namespace {

constexpr qint64 longestTurn = 30; // milliseconds; the interface stays alive between turns

} // namespace

RecordingLoader::RecordingLoader(QString folder, const RecordingNote &note, TileStore &store,
                                 Report report)
    : folder_(std::move(folder)), note_(note), store_(store), report_(std::move(report)) {
    connect(&turns_, &QTimer::timeout, this, &RecordingLoader::readSome);
    turns_.start(0);
}

void RecordingLoader::readSome() {
    QElapsedTimer turn;
    turn.start();
    while (!hasEnded() && turn.elapsed() < longestTurn)
        readNext();
    if (hasEnded())
        turns_.stop();
    report_(frames_.size());
}

void RecordingLoader::readNext() {
    const QString path = working_folders::frameFile(folder_, frames_.size());
    struct stat found = {};
    if (stat(QFile::encodeName(path).constData(), &found) != 0) {
        failed_ = path;
        return;
    }
    const std::pair file(found.st_dev, found.st_ino);
    if (!frames_.empty() && file == lastFile_) {
        frames_.push_back(frames_.back());
        return;
    }
    QImageReader reader(path, "png");
    const QImage pixels = reader.read();
    if (pixels.isNull() || pixels.size() != note_.size) {
        failed_ = path;
        return;
    }
    const Image previous = frames_.empty() ? Image() : frames_.back();
    frames_.push_back(store_.keep(Image::fromQImage(pixels), previous));
    lastFile_ = file;
}
