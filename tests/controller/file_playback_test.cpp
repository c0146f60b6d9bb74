// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/file_playback.h"
#include "tests/support/files.h"

#include <QColor>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr int late = 1500; // milliseconds that a busy machine may need beside

/// A GIF of single pixels, black, red, green and blue in turn, with these delays in hundredths of a
/// second. A player begins again `repeats` times.
QByteArray gifOf(const std::vector<int> &delays, int repeats) {
    const auto word = [](int value) {
        return QByteArray(1, static_cast<char>(value & 255)) + static_cast<char>(value >> 8);
    };
    QByteArray gif = "GIF89a" + word(1) + word(1) + QByteArray::fromHex("a10000") +
                     QByteArray::fromHex("000000ff000000ff000000ff");
    gif += QByteArray::fromHex("21ff0b") + "NETSCAPE2.0" + QByteArray::fromHex("0301") +
           word(repeats) + '\0';
    for (std::size_t frame = 0; frame < delays.size(); ++frame) {
        gif += QByteArray::fromHex("21f90400") + word(delays[frame]) + QByteArray(2, '\0');
        gif += ',' + word(0) + word(0) + word(1) + word(1) + '\0';
        // Three codes of three bits: clear, the pixel, the end.
        const int codes = 4 | static_cast<int>(frame % 4) << 3 | 5 << 6;
        gif += QByteArray::fromHex("0202") + word(codes) + '\0';
    }
    return gif + ';';
}

struct Seen {
    QRgb colour;
    qint64 at; // milliseconds
};

/// What a playback shows until it ends.
class FilePlaybackTest : public testing::Test {
protected:
    FilePlaybackTest() {
        QObject::connect(&playback, &FilePlayback::shown, &playback, [this](const QImage &picture) {
            seen.push_back({picture.pixel(0, 0), clock.elapsed()});
        });
        QObject::connect(&playback, &FilePlayback::ended, &playback, [this] { ++ends; });
        playback.setLargest({100, 100});
        clock.start();
    }
    QString file(const QByteArray &content) {
        put(folder.filePath(QStringLiteral("a.gif")), content);
        return folder.filePath(QStringLiteral("a.gif"));
    }

    QTemporaryDir folder;
    QElapsedTimer clock;
    std::vector<Seen> seen;
    int ends = 0;
    FilePlayback playback{nullptr};
};

TEST_F(FilePlaybackTest, ShowsThePicturesWithTheDelaysOfBrowsersAsOftenAsTheFileSays) {
    playback.open(file(gifOf({0, 1, 5, 12}, 1)), {});
    playback.play();
    ASSERT_TRUE(QTest::qWaitFor([this] { return ends > 0; }, 2 * late));
    const int delays[] = {100, 100, 50, 120};
    const QRgb colours[] = {0xff000000, 0xffff0000, 0xff00ff00, 0xff0000ff};
    ASSERT_EQ(seen.size(), 8u);
    qint64 due = seen[0].at;
    for (std::size_t at = 0; at < seen.size(); ++at) {
        EXPECT_EQ(seen[at].colour, colours[at % 4]);
        EXPECT_GE(seen[at].at, due - 2) << at;
        EXPECT_LE(seen[at].at, due + late) << at;
        due += delays[at % 4];
    }
    EXPECT_FALSE(playback.isPlaying());
    playback.play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return seen.size() > 8; })) << "from the beginning";
}

TEST_F(FilePlaybackTest, WaitsAtTheFirstPictureAndWherePaused) {
    playback.open(file(gifOf({2, 2, 2, 2}, 0)), {});
    QTest::qWait(150);
    EXPECT_EQ(seen.size(), 1u);
    playback.play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return seen.size() > 9; })) << "without end";
    playback.pause();
    const std::size_t paused = seen.size();
    QTest::qWait(100);
    EXPECT_EQ(seen.size(), paused);
    playback.play();
    ASSERT_TRUE(QTest::qWaitFor([&] { return seen.size() > paused + 1; }));
    EXPECT_NE(seen[paused].colour, seen[paused - 1].colour);
    playback.close();
    const std::size_t closed = seen.size();
    QTest::qWait(100);
    EXPECT_EQ(seen.size(), closed);
}

TEST_F(FilePlaybackTest, TellsWhatCannotBePlayed) {
    int unreadable = 0;
    QObject::connect(&playback, &FilePlayback::unreadable, &playback, [&] { ++unreadable; });
    for (const char *name : {"a.gif", "a.webp", "a.mp4"}) {
        put(folder.filePath(QString::fromLatin1(name)), "nothing of the kind");
        playback.open(folder.filePath(QString::fromLatin1(name)), QStringLiteral("ffmpeg"));
        playback.play();
        EXPECT_TRUE(QTest::qWaitFor([&] { return unreadable > 0; })) << name;
        unreadable = 0;
    }
    playback.open(file(gifOf({5}, 0)), {});
    playback.play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return ends > 0; }));
    EXPECT_TRUE(playback.isStill());
}

} // namespace
