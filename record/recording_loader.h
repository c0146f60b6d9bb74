// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/image/tile_store.h"
#include "record/recording_note.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <sys/types.h>

#include <functional>
#include <utility>
#include <vector>

/// Reads the frame files of a saved recording back into a frame store, a few in each turn of the
/// event loop. Names of one file become one picture again.
class RecordingLoader : public QObject {
    Q_OBJECT

public:
    /// Called after each turn with the number of frames read so far. The last call comes when all
    /// have been read, or one cannot be; `deleteLater` may be called on the loader in it.
    using Report = std::function<void(std::uint64_t done)>;

    /// Starts with the next turn of the event loop. `store` is borrowed.
    RecordingLoader(QString folder, const RecordingNote &note, TileStore &store, Report report);

    const RecordingNote &note() const { return note_; }
    bool hasFailed() const { return !failed_.isEmpty(); }
    bool hasEnded() const { return hasFailed() || frames_.size() == note_.frames; }
    /// The file that could not be read.
    const QString &failedFile() const { return failed_; }
    std::vector<Image> takeFrames() { return std::exchange(frames_, {}); }

private:
    void readSome();
    void readNext();

    const QString folder_;
    const RecordingNote note_;
    TileStore &store_;
    const Report report_;
    QTimer turns_;
    std::vector<Image> frames_;
    std::pair<dev_t, ino_t> lastFile_{};
    QString failed_;
};
