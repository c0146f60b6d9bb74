// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QThreadPool>

#include <cstdint>
#include <memory>
#include <vector>

/// Makes the small pictures that the strip shows, in threads of its own, and keeps the last ones.
/// It neither draws them nor decides which frames they show.
class StripPictures : public QObject {
    Q_OBJECT

public:
    /// A frame to be made small: out of the store, or where there is none out of its file.
    struct Source {
        std::uint64_t frame = 0;
        Image image = {};
        QString file = {};

        bool operator==(const Source &other) const {
            return frame == other.frame && image.sameAs(other.image) && file == other.file;
        }
    };

    explicit StripPictures(QObject *parent);
    /// Waits for what is being made.
    ~StripPictures() override;

    /// Asks for these, each as large as it fits into `bounds` (pixels), for a screen of `ratio`
    /// pixels to a point. Returns at once; does nothing where the last call asked for the same.
    /// Until one is made, the nearest of the last call takes its place, if that was about the same
    /// `recording`, a name for it. What was asked for before is given up.
    void request(std::vector<Source> sources, QSize bounds, double ratio,
                 Image::Identity recording);

    /// One for each that was asked for, in the same order; null until there is one, or where the
    /// frame cannot be read.
    const std::vector<QImage> &pictures() const { return pictures_; }
    /// Whether all were made that can be.
    bool isComplete() const { return missing_ == 0; }

Q_SIGNALS:
    /// One more was made.
    void changed();

private:
    struct Job;
    static void work(StripPictures *self, const std::shared_ptr<Job> &job);
    void take(const std::shared_ptr<Job> &job, std::size_t place, const QImage &picture);

    std::shared_ptr<Job> job_; // the last one
    std::vector<QImage> pictures_;
    std::size_t missing_ = 0;
    QThreadPool threads_;
};
