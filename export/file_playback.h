// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QThread>
#include <QTimer>

#include <cstdint>
#include <deque>
#include <memory>

class QProcess;

/// Plays an animated picture from its file as browsers play it: its delays, except that one of a
/// hundredth of a second or less counts as a tenth, and as often as it says. The file is read and
/// decoded in a thread of low priority, a few pictures ahead of what is shown; at its end it is
/// read again from the beginning. Of a video it shows the first picture, by a tool.
class FilePlayback : public QObject {
    Q_OBJECT

public:
    explicit FilePlayback(QObject *parent);
    /// Waits until the picture that is being decoded is done.
    ~FilePlayback() override;

    /// No picture is larger than this, in pixels; smaller ones keep their size.
    void setLargest(QSize pixels) { largest_ = pixels; }

    /// Shows the first picture of this file, and plays no further until it is told to. Nothing is
    /// said of another file afterwards. `videoTool` is the path of `ffmpeg`.
    void open(const QString &path, const QString &videoTool);
    /// Gives back file and pictures.
    void close();

    /// From where it is, or from the beginning after the end. Nothing happens without a file.
    void play();
    void pause();
    bool isPlaying() const { return isPlaying_; }
    /// Whether it is known to be a single picture.
    bool isStill() const { return isStill_; }

Q_SIGNALS:
    /// This picture is to be seen from now on.
    void shown(const QImage &picture);
    /// It has been played as often as the file says.
    void ended();
    /// There is no picture in the file that could be shown.
    void unreadable();

private:
    struct Picture {
        QImage image;  ///< Empty behind the last one.
        int delay = 0; ///< milliseconds
    };
    class Decoder;

    void rewind();
    void askAhead();
    void take(std::uint64_t run, const Picture &picture);
    void showNext();
    void showVideo(const QString &toolPath);

    QSize largest_;
    QString path_;
    QThread thread_;
    std::unique_ptr<Decoder> decoder_;
    std::unique_ptr<QProcess> video_;
    std::deque<Picture> ahead_;
    int asked_ = 0;         ///< Pictures that the decoder is going to give.
    std::uint64_t run_ = 0; ///< What is decoded for an earlier one is not listened to.
    int shownPictures_ = 0;
    bool isPlaying_ = false;
    bool isStill_ = false;
    bool atEnd_ = false;
    bool isLate_ = false; ///< The next picture is due, and not decoded yet.
    QElapsedTimer clock_;
    qint64 due_ = 0; ///< When the next picture is to be shown, in milliseconds of the clock.
    QTimer timer_;
};
