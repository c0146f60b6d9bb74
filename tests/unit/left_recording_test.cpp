// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/left_recording.h"

#include "shell/working_folders.h"
#include "tests/support/files.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <functional>

namespace {

const RecordingNote sample{
    .frames = 3, .size = {640, 480}, .seconds = 70.0125, .rate = 4.99910730, .bytes = 8123456};

TEST(RecordingNote, comesBackAsItWasAndIsRefusedWhenAnyPartIsMissing) {
    const QByteArray text = textOfNote(sample);
    const std::optional<RecordingNote> note = noteFromText(text);
    ASSERT_TRUE(note);
    EXPECT_EQ(note->frames, sample.frames);
    EXPECT_EQ(note->size, sample.size);
    EXPECT_EQ(note->seconds, sample.seconds);
    EXPECT_EQ(note->rate, sample.rate);
    EXPECT_EQ(note->bytes, sample.bytes);
    for (qsizetype length = 0; length < text.size(); ++length)
        EXPECT_FALSE(noteFromText(text.first(length))) << length;
    EXPECT_TRUE(noteFromText(text + "later 5\n")) << "of a version that knows more";
}

TEST(RecordingNote, isRefusedWhenAValueIsNoneOrBeyondItsBounds) {
    const std::pair<const char *, const char *> changes[] = {
        {"Tovarel recording 1", "Tovarel recording 2"},
        {"frames 3", "frames 0"},
        {"frames 3", "frames -1"},
        {"frames 3", "frames 3.5"},
        {"frames 3", "frames 99999999999999999999"},
        {"frames 3", "frames 3\nframes 3"},
        {"width 640", "width 0"},
        {"width 640", "width 640px"},
        {"height 480", "height 4294967776"},
        {"seconds 70", "seconds -70"},
        {"seconds 70", "seconds nan"},
        {"rate 4", "rate inf"},
        {"rate 4", "rate 0."},
        {"rate 4", "rate 1004"},
        {"bytes 8123456", "bytes"},
    };
    for (const auto &[from, to] : changes) {
        QByteArray text = textOfNote(sample);
        ASSERT_TRUE(text.contains(from)) << from;
        EXPECT_FALSE(noteFromText(text.replace(from, to))) << to;
    }
}

/// A folder with a recording of four frames.
class LeftRecording : public testing::Test {
protected:
    LeftRecording() {
        for (std::uint64_t number = 0; number < frames; ++number) {
            QImage picture(32, 24, QImage::Format_RGB32);
            picture.fill(qRgb(static_cast<int>(number), 0, 0));
            EXPECT_TRUE(picture.save(frame(number)));
        }
        note = {.frames = frames, .size = {32, 24}, .seconds = 2.0, .rate = 2.0};
    }
    QString frame(std::uint64_t number) const {
        return working_folders::frameFile(folder.path(), number);
    }

    static constexpr std::uint64_t frames = 4;
    QTemporaryDir folder;
    RecordingNote note;
};

TEST_F(LeftRecording, isFoundWhenItIsWholeAndItsNoteIsForTheUserAlone) {
    EXPECT_FALSE(left_recording::find(folder.path())) << "no note: it was not saved to the end";
    ASSERT_TRUE(left_recording::writeNote(folder.path(), note));
    const auto found = left_recording::find(folder.path());
    ASSERT_TRUE(found);
    EXPECT_EQ(found->frames, frames);
    EXPECT_EQ(found->size, QSize(32, 24));
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(left_recording::noteFile(folder.path())).constData(), &status),
              0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    left_recording::removeNote(folder.path());
    EXPECT_FALSE(left_recording::find(folder.path()));
}

TEST_F(LeftRecording, isNotFoundWhenAnythingOfItIsMissingOrOther) {
    const std::pair<const char *, std::function<void()>> faults[] = {
        {"a frame is missing", [this] { QFile::remove(frame(2)); }},
        {"a frame is cut short", [this] { QFile::resize(frame(3), 20); }},
        {"a frame is empty", [this] { QFile::resize(frame(0), 0); }},
        {"another recording's frames go on", [this] { QFile::copy(frame(0), frame(frames)); }},
        {"a link in a frame's place",
         [this] {
             const QString aside = folder.filePath(QStringLiteral("aside"));
             QFile::rename(frame(1), aside);
             QFile::link(aside, frame(1));
         }},
        {"frames of another size",
         [this] {
             // With as many bytes: only the picture's head tells.
             QByteArray other = contentOf(frame(0));
             other[19] = 64; // PNG, 11.2.1 (IHDR): the last byte of the width
             put(frame(0), other);
         }},
        {"a link in the note's place",
         [this] {
             const QString real = folder.filePath(QStringLiteral("real"));
             QFile::rename(left_recording::noteFile(folder.path()), real);
             QFile::link(real, left_recording::noteFile(folder.path()));
         }},
    };
    for (const auto &[what, fault] : faults) {
        SCOPED_TRACE(what);
        const QTemporaryDir kept;
        for (std::uint64_t number = 0; number < frames; ++number)
            QFile::copy(frame(number), working_folders::frameFile(kept.path(), number));
        ASSERT_TRUE(left_recording::writeNote(folder.path(), note));
        ASSERT_TRUE(left_recording::find(folder.path()));
        fault();
        EXPECT_FALSE(left_recording::find(folder.path()));
        working_folders::removeContent(folder.path().toStdString());
        for (std::uint64_t number = 0; number < frames; ++number)
            QFile::copy(working_folders::frameFile(kept.path(), number), frame(number));
    }
}

TEST_F(LeftRecording, givesWayToANewOneAndComesBackWhereThatIsNotWhole) {
    const QTemporaryDir documents;
    const QString real = documents.filePath(QStringLiteral("recordings"));
    const QString linked = documents.filePath(QStringLiteral("link"));
    const QString aside = real + QStringLiteral("Previous");
    ASSERT_TRUE(QFile::rename(folder.path(), real));
    ASSERT_TRUE(QFile::link(real, linked));
    ASSERT_TRUE(left_recording::writeNote(linked, note));
    ASSERT_TRUE(left_recording::setAside(linked));
    EXPECT_TRUE(QFileInfo(linked).isSymLink()) << "it still leads to where the user wants it";
    EXPECT_TRUE(QDir(linked).isEmpty());
    put(working_folders::frameFile(linked, 0), "half a frame");
    const auto found = left_recording::findAtStart(linked);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->frames, frames);
    EXPECT_TRUE(left_recording::find(linked));
    EXPECT_FALSE(QFileInfo::exists(aside));

    // A folder of that name that is not ours.
    ASSERT_TRUE(QDir().mkpath(aside));
    put(aside + QStringLiteral("/letter.txt"), "mine");
    EXPECT_FALSE(left_recording::setAside(linked));
    EXPECT_TRUE(left_recording::find(linked));
    left_recording::removeNote(linked);
    EXPECT_FALSE(left_recording::findAtStart(linked));
    EXPECT_TRUE(QDir(linked).isEmpty());
    EXPECT_EQ(contentOf(aside + QStringLiteral("/letter.txt")), "mine");
}

} // namespace
