// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "app/application.h"
#include "app/tab_view.h"
#include "platform/null/null_window_server.h"
#include "trim/cut_handle.h"
#include "trim/view_cut_preview.h"
#include "trim/view_cut_range.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleInterface>
#include <QFile>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using range_rules::Handle;

namespace {

/// The whole program on no display, with a recording of single-coloured frames in its store.
class TrimEditor : public testing::Test {
protected:
    void SetUp() override {
        auto *application = qobject_cast<Application *>(QCoreApplication::instance());
        application->setDelegate(&delegate);
        delegate.awakeFromNib();
        ASSERT_TRUE(delegate.applicationDidFinishLaunching());
        strip = delegate.shell.window()->findChild<View_Cut_Range *>();
        preview = delegate.shell.window()->findChild<View_Cut_Preview *>();
    }

    void TearDown() override {
        delegate.OnCutStop(nullptr);
        qobject_cast<Application *>(QCoreApplication::instance())->setDelegate(nullptr);
        delete delegate.shell.window();
    }

    void haveRecording(int frames, std::uint64_t rate) {
        delegate.recording.array_Images.emplace();
        for (int frame = 0; frame < frames; ++frame) {
            QImage picture(64, 36, QImage::Format_RGB32);
            picture.fill(colourOf(frame));
            delegate.recording.array_Images->push_back(Image::fromQImage(picture));
        }
        delegate.recording.setU_Record_Current_Frame(static_cast<std::uint64_t>(frames));
        delegate.recording.setU_Record_Current_FPS(rate);
        QFile first(documents.filePath(QStringLiteral("Pallomar/frame00000000.png")));
        ASSERT_TRUE(first.open(QIODevice::WriteOnly));
        delegate.shell.tabviewMain()->selectTabViewItemAtIndex(1);
    }

    static QColor colourOf(int frame) { return {frame * 5 % 256, 255 - frame * 5 % 256, 77}; }

    /// The number of the frame that the preview shows, by its colour; -1 for none of them.
    int shownFrame() {
        const QColor colour =
            preview->grab().toImage().pixelColor(preview->width() / 2, preview->height() / 2);
        for (int frame = 0; frame < 51; ++frame)
            if (colourOf(frame) == colour)
                return frame;
        return -1;
    }

    QWidget *button(const char *name) {
        return delegate.shell.window()->findChild<QWidget *>(QString::fromLatin1(name));
    }

    void drag(double from, double to) {
        const int y = strip->height() / 2;
        QTest::mousePress(strip, Qt::LeftButton, {}, QPoint(static_cast<int>(from), y));
        QTest::mouseMove(strip, QPoint(static_cast<int>(to), y));
        QTest::mouseRelease(strip, Qt::LeftButton, {}, QPoint(static_cast<int>(to), y));
    }

    QTemporaryDir documents;
    AppDelegate delegate{{.windowServer = std::make_unique<NullWindowServer>(QString()),
                          .documentsFolder = documents.path()}};
    View_Cut_Range *strip = nullptr;
    View_Cut_Preview *preview = nullptr;
};

} // namespace

TEST_F(TrimEditor, stripAndPreviewAreEquallyWideAtEverySize) {
    haveRecording(10, 5);
    for (const QSize size : {QSize(556, 425), QSize(803, 611), QSize(1920, 1080)}) {
        delegate.shell.window()->resize(size);
        QTest::qWait(0);
        EXPECT_EQ(strip->width(), preview->width());
        EXPECT_EQ(strip->x(), preview->x());
    }
}

TEST_F(TrimEditor, withoutARecordingThereIsNothingToPlay) {
    delegate.shell.tabviewMain()->selectTabViewItemAtIndex(1);
    EXPECT_FALSE(button("btnCutPlay")->isEnabled());
    delegate.togglePlayback();
    EXPECT_EQ(delegate.trim.m_PlayStatus(), PLAY_STATUS_STOP);
    // White letters on black.
    const QImage shown = preview->grab().toImage();
    bool white = false;
    for (int x = 0; x < shown.width(); ++x)
        white |= shown.pixelColor(x, shown.height() / 2) == QColor(Qt::white);
    EXPECT_TRUE(white);
    EXPECT_EQ(shown.pixelColor(2, 2), QColor(Qt::black));
}

TEST_F(TrimEditor, stripShowsHandlesAndBandInTheirColoursAndAPlayheadWhilePlaying) {
    haveRecording(10, 5);
    const double W = strip->width();
    const auto colourAt = [&](double x) {
        return strip->grab().toImage().pixelColor(static_cast<int>(x), strip->height() / 2);
    };
    EXPECT_EQ(colourAt(2), QColor(255, 0, 0));
    EXPECT_EQ(colourAt(W - 3), QColor(255, 0, 0));
    EXPECT_EQ(colourAt(W / 2), QColor(0, 255, 0));
    drag(2, W / 4);
    EXPECT_EQ(colourAt(2).red(), colourAt(2).blue());
    EXPECT_NEAR(colourAt(2).red(), 128, 1);

    delegate.OnCutPlay(nullptr);
    EXPECT_EQ(colourAt(2), QColor(0, 0, 255));
    EXPECT_NEAR(colourAt(W / 2).red(), 128, 1);
    // Nothing can be moved now, not even by a press that hits the playhead.
    const float before = delegate.trim.f_Cut_Percent_Menor();
    drag(2, W / 2);
    QTest::keyClick(strip, Qt::Key_Right);
    EXPECT_EQ(delegate.trim.f_Cut_Percent_Menor(), before);
}

TEST_F(TrimEditor, playbackLoopsOverTheRangePausesResumesAndStartsAfreshAfterStop) {
    haveRecording(10, 60);
    strip->moveToFrame(Handle::Menor, 3);
    strip->moveToFrame(Handle::Maior, 6);
    EXPECT_EQ(shownFrame(), 3);
    delegate.OnCutPlay(nullptr);
    ASSERT_TRUE(delegate.trim.timerPlayRefresh);
    EXPECT_EQ(delegate.trim.timerPlayRefresh->interval(), static_cast<double>(1.0f / 60.0f));
    delegate.trim.timerPlayRefresh.reset(); // From here the test is the clock.
    QList<int> shown;
    for (int tick = 0; tick < 4; ++tick) {
        shown << shownFrame();
        delegate.TimerRefreshPlayRoutine();
    }
    EXPECT_EQ(shown, QList<int>({3, 4, 5, 3}));
    delegate.OnCutPause(nullptr);
    EXPECT_EQ(shownFrame(), 4);
    delegate.OnCutPlay(nullptr);
    delegate.TimerRefreshPlayRoutine();
    EXPECT_EQ(shownFrame(), 5);
    delegate.OnCutStop(nullptr);
    EXPECT_FALSE(delegate.trim.timerPlayRefresh);
    EXPECT_EQ(delegate.trim.uCurrentFrame(), 5u);
    EXPECT_EQ(shownFrame(), 3);
    delegate.OnCutPlay(nullptr);
    EXPECT_EQ(shownFrame(), 3);
}

TEST_F(TrimEditor, aRangeAtTheVeryEndShowsTheLastFrameInPlaybackToo) {
    haveRecording(10, 5);
    strip->moveToFrame(Handle::Menor, 10);
    EXPECT_EQ(shownFrame(), 9);
    EXPECT_EQ(delegate.trim.uFirstFrame(), 10u);
    delegate.OnCutPlay(nullptr);
    delegate.TimerRefreshPlayRoutine();
    EXPECT_EQ(shownFrame(), 9);
    strip->grab();
}

TEST_F(TrimEditor, assistiveTechnologySeesTwoSlidersAndCanSetThem) {
    haveRecording(10, 5);
    QAccessibleInterface *group = QAccessible::queryAccessibleInterface(strip);
    ASSERT_TRUE(group);
    EXPECT_EQ(group->role(), QAccessible::Grouping);
    ASSERT_EQ(group->childCount(), 2);
    QAccessibleInterface *upper = group->child(1);
    ASSERT_TRUE(upper && upper->valueInterface() && upper->actionInterface());
    EXPECT_EQ(upper->role(), QAccessible::Slider);
    EXPECT_FALSE(upper->text(QAccessible::Name).isEmpty());
    EXPECT_EQ(upper->valueInterface()->currentValue().toInt(), 10);
    upper->valueInterface()->setCurrentValue(6);
    EXPECT_EQ(strip->frameOf(Handle::Maior), 6u);
    upper->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(strip->frameOf(Handle::Maior), 5u);
    upper->valueInterface()->setCurrentValue(-4.0);
    EXPECT_EQ(strip->frameOf(Handle::Maior), 0u);
}

TEST_F(TrimEditor, whateverIsPressedTheHandlesStayInOrderAndAKeyMovesOneFrame) {
    const unsigned seed = std::random_device{}();
    RecordProperty("seed", std::to_string(seed));
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto upTo = [&random](int most) {
        return std::uniform_int_distribution<int>(0, most)(random);
    };
    haveRecording(upTo(48) + 2, static_cast<std::uint64_t>(upTo(60)));
    delegate.shell.window()->activateWindow();
    strip->setFocus();
    const auto frames = [&] {
        return std::pair(strip->frameOf(Handle::Menor), strip->frameOf(Handle::Maior));
    };
    const Qt::Key keys[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Tab,  Qt::Key_Backtab,
                            Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    for (int step = 0; step < 400; ++step) {
        const int action = upTo(9);
        if (action == 0)
            delegate.OnCutPlay(nullptr);
        else if (action == 1)
            delegate.OnCutPause(nullptr);
        else if (action <= 3)
            delegate.OnCutStop(nullptr);
        else if (action == 4)
            delegate.TimerRefreshPlayRoutine();
        else if (action == 5)
            drag(strip->rectMenor().center().x(), upTo(strip->width() + 40) - 20);
        else if (action == 6)
            drag(strip->rectMaior().center().x(), upTo(strip->width() + 40) - 20);
        else {
            const Qt::Key key = keys[upTo(7)];
            const auto before = frames();
            const bool stopped = delegate.trim.m_PlayStatus() == PLAY_STATUS_STOP;
            const std::uint64_t chosen = strip->frameOf(strip->chosenHandle());
            QTest::keyClick(strip, key);
            const auto after = frames();
            const std::uint64_t moved =
                std::max(after.first, before.first) - std::min(after.first, before.first) +
                std::max(after.second, before.second) - std::min(after.second, before.second);
            const bool atEnd = key == Qt::Key_Left ? chosen == 0 : chosen == strip->frameCount();
            if (key == Qt::Key_Left || key == Qt::Key_Right) {
                ASSERT_EQ(moved, stopped && !atEnd ? 1u : 0u) << "step " << step;
            }
        }
        ASSERT_LE(delegate.trim.f_Cut_Percent_Menor(), delegate.trim.f_Cut_Percent_Maior());
        ASSERT_FALSE(strip->grab().isNull());
        ASSERT_FALSE(preview->grab().isNull());
    }
}
