// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/strip_pictures.h"

#include "platform/image/image_scaler.h"

#include <QImageReader>
#include <QThread>

#include <sys/resource.h>

#include <algorithm>
#include <atomic>
#include <new>
#include <utility>

namespace {

constexpr int mostThreads = 2;
constexpr int lowPriority = 2; // the interface goes first, what the user waits for next

QImage madeSmall(const StripPictures::Source &source, QSize bounds, double ratio,
                 ImageScaler &scaler) {
    const Image image = source.image.isEmpty()
                            ? Image::fromQImage(QImageReader(source.file, "png").read())
                            : source.image;
    if (image.isEmpty())
        return {};
    const QSize size = image.size().scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1});
    // The scaler's own picture changes with the next one.
    return scaler.scaled(image, size, ratio, ImageScaler::Care::Quick).copy();
}

} // namespace

struct StripPictures::Job {
    std::vector<Source> sources;
    QSize bounds;
    double ratio = 1;
    Image::Identity recording = 0;
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> isGivenUp = false;
};

StripPictures::StripPictures(QObject *parent) : QObject(parent) {
    threads_.setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, mostThreads));
    threads_.setExpiryTimeout(0); // none waits for a next time that may be long away
}

StripPictures::~StripPictures() {
    if (job_)
        job_->isGivenUp = true;
    threads_.waitForDone();
}

void StripPictures::request(std::vector<Source> sources, QSize bounds, double ratio,
                            Image::Identity recording) {
    if (job_ && job_->bounds == bounds && job_->ratio == ratio && job_->sources == sources)
        return;
    auto job = std::make_shared<Job>();
    job->sources = std::move(sources);
    job->bounds = bounds;
    job->ratio = ratio;
    job->recording = recording;
    std::vector<QImage> meanwhile(job->sources.size());
    if (job_) {
        job_->isGivenUp = true;
        if (job_->recording == recording && !pictures_.empty())
            for (std::size_t place = 0; place < meanwhile.size(); ++place) {
                const auto later = std::ranges::lower_bound(
                    job_->sources, job->sources[place].frame, {}, &Source::frame);
                const auto nearest = later == job_->sources.end() ? std::prev(later) : later;
                meanwhile[place] =
                    pictures_[static_cast<std::size_t>(nearest - job_->sources.begin())];
            }
    }
    pictures_ = std::move(meanwhile);
    missing_ = job->sources.size();
    job_ = job;
    const int helpers = std::min(threads_.maxThreadCount(), static_cast<int>(missing_));
    for (int helper = 0; helper < helpers; ++helper)
        threads_.start([this, job] { work(this, job); });
}

void StripPictures::work(StripPictures *self, const std::shared_ptr<Job> &job) {
    // On Linux a thread has a priority of its own.
    setpriority(PRIO_PROCESS, 0, lowPriority);
    ImageScaler scaler;
    for (;;) {
        const std::size_t place = job->next++;
        if (job->isGivenUp || place >= job->sources.size())
            return;
        QImage picture;
        try {
            picture = madeSmall(job->sources[place], job->bounds, job->ratio, scaler);
        } catch (const std::bad_alloc &) {
            // One more that cannot be shown.
            scaler = {};
        }
        QMetaObject::invokeMethod(
            self, [self, job, place, picture] { self->take(job, place, picture); },
            Qt::QueuedConnection);
    }
}

void StripPictures::take(const std::shared_ptr<Job> &job, std::size_t place,
                         const QImage &picture) {
    if (job != job_)
        return;
    pictures_[place] = picture;
    --missing_;
    Q_EMIT changed();
}
