// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_playback.h"

#include "export/tool_process.h"

#include <QFileInfo>
#include <QImageReader>
#include <QProcess>

#include <sys/resource.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr std::size_t mostAhead = 3; // pictures
constexpr int lowPriority = 10;
// What browsers make of delays that no screen could follow.
constexpr int shortestDelay = 10; // milliseconds
constexpr int usualDelay = 100;
constexpr qint64 mostLate = 250; // milliseconds that are caught up with

} // namespace

/// What the thread does. Its functions run there, in the order in which they were called.
class FilePlayback::Decoder : public QObject {
public:
    void open(const QString &path) {
        // On Linux a thread has a priority of its own.
        setpriority(PRIO_PROCESS, 0, lowPriority);
        path_ = path;
        begin();
        rounds_ = 0;
    }

    void close() { reader_.reset(); }

    Picture next(QSize largest) {
        if (!reader_)
            return {};
        QImage image = reader_->read();
        if (image.isNull() && inRound_ > 1 && mayRepeat()) {
            begin();
            image = reader_->read();
        }
        if (image.isNull()) {
            reader_.reset();
            return {};
        }
        ++inRound_;
        const int delay = reader_->nextImageDelay();
        if (image.width() > largest.width() || image.height() > largest.height())
            image = image.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        return {image, delay > shortestDelay ? delay : usualDelay};
    }

private:
    void begin() {
        reader_.emplace(path_);
        inRound_ = 0;
    }

    /// Counts a round that has ended.
    bool mayRepeat() {
        const int repeats = reader_->loopCount(); // below 0 without end
        ++rounds_;
        return repeats < 0 || rounds_ <= repeats;
    }

    QString path_;
    std::optional<QImageReader> reader_;
    int inRound_ = 0;
    int rounds_ = 0;
};

FilePlayback::FilePlayback(QObject *parent)
    : QObject(parent), decoder_(std::make_unique<Decoder>()) {
    decoder_->moveToThread(&thread_);
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &FilePlayback::showNext);
}

FilePlayback::~FilePlayback() {
    close();
    thread_.quit();
    thread_.wait();
}

void FilePlayback::open(const QString &path, const QString &videoTool) {
    close();
    path_ = path;
    isStill_ = false;
    if (QFileInfo(path).suffix().compare(QLatin1String("mp4"), Qt::CaseInsensitive) == 0) {
        showVideo(videoTool);
        return;
    }
    rewind();
}

void FilePlayback::rewind() {
    if (!thread_.isRunning())
        thread_.start();
    ++run_;
    ahead_.clear();
    asked_ = 0;
    shownPictures_ = 0;
    atEnd_ = false;
    isLate_ = true; // it is shown as soon as it is there
    Decoder *decoder = decoder_.get();
    QMetaObject::invokeMethod(
        decoder, [decoder, path = path_] { decoder->open(path); }, Qt::QueuedConnection);
    askAhead();
}

void FilePlayback::close() {
    pause();
    ++run_;
    ahead_.clear();
    path_.clear();
    if (video_) {
        // Somebody may be listening to it right now.
        video_->disconnect(this);
        video_->kill();
        video_.release()->deleteLater();
    }
    isLate_ = false;
    if (thread_.isRunning())
        QMetaObject::invokeMethod(
            decoder_.get(), [decoder = decoder_.get()] { decoder->close(); }, Qt::QueuedConnection);
}

void FilePlayback::play() {
    if (path_.isEmpty() || isPlaying_ || isStill_)
        return;
    isPlaying_ = true;
    if (atEnd_) {
        rewind();
        return;
    }
    if (shownPictures_ > 0) {
        clock_.start();
        due_ = 0;
        askAhead();
        showNext();
    }
}

void FilePlayback::pause() {
    isPlaying_ = false;
    timer_.stop();
    isLate_ = isLate_ && shownPictures_ == 0;
}

void FilePlayback::askAhead() {
    // The first one alone, as long as it does not play.
    const std::size_t wanted = isPlaying_ ? mostAhead : shownPictures_ == 0 ? 1 : 0;
    while (!atEnd_ && ahead_.size() + static_cast<std::size_t>(asked_) < wanted) {
        ++asked_;
        QMetaObject::invokeMethod(
            decoder_.get(),
            [this, decoder = decoder_.get(), run = run_, largest = largest_] {
                const Picture picture = decoder->next(largest);
                QMetaObject::invokeMethod(
                    this, [this, run, picture] { take(run, picture); }, Qt::QueuedConnection);
            },
            Qt::QueuedConnection);
    }
}

void FilePlayback::take(std::uint64_t run, const Picture &picture) {
    if (run != run_)
        return;
    --asked_;
    if (picture.image.isNull())
        atEnd_ = true;
    if (!atEnd_ || ahead_.empty() || !ahead_.back().image.isNull())
        ahead_.push_back(picture);
    if (isLate_)
        showNext();
}

void FilePlayback::showNext() {
    isLate_ = ahead_.empty();
    if (isLate_)
        return;
    const Picture next = std::exchange(ahead_.front(), {});
    ahead_.pop_front();
    if (next.image.isNull()) {
        isPlaying_ = false;
        isStill_ = shownPictures_ == 1;
        if (shownPictures_ == 0)
            Q_EMIT unreadable();
        else
            Q_EMIT ended();
        return;
    }
    if (shownPictures_++ == 0) {
        clock_.start();
        due_ = 0;
    }
    Q_EMIT shown(next.image);
    if (!isPlaying_) {
        due_ = next.delay;
        return;
    }
    // Counted from when it should have been: delays do not add up what the timers are late.
    due_ = std::max(due_, clock_.elapsed() - mostLate) + next.delay;
    timer_.start(static_cast<int>(std::max<qint64>(0, due_ - clock_.elapsed())));
    askAhead();
}

void FilePlayback::showVideo(const QString &toolPath) {
    isStill_ = true;
    video_ = std::make_unique<QProcess>();
    QProcess &tool = *video_;
    tool_process::prepare(
        tool, toolPath,
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"),
         QStringLiteral("file:") + path_, QStringLiteral("-frames:v"), QStringLiteral("1"),
         QStringLiteral("-vf"),
         QStringLiteral("scale='min(iw,%1)':'min(ih,%2)':force_original_aspect_ratio=decrease")
             .arg(largest_.width())
             .arg(largest_.height()),
         QStringLiteral("-f"), QStringLiteral("image2pipe"), QStringLiteral("-c:v"),
         QStringLiteral("png"), QStringLiteral("-")});
    const auto end = [this] {
        const QImage picture = QImage::fromData(video_->readAllStandardOutput(), "png");
        if (picture.isNull())
            Q_EMIT unreadable();
        else
            Q_EMIT shown(picture);
    };
    connect(&tool, &QProcess::finished, this, end);
    connect(&tool, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Q_EMIT unreadable();
    });
    tool.start(QIODevice::ReadOnly);
}
