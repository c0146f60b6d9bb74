// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/tab_view.h"
#include "tests/controller/controller_fixture.h"
#include "tests/support/files.h"
#include "trim/view_cut_preview.h"
#include "trim/view_cut_range.h"

#include <QMenu>
#include <QTest>

#include <algorithm>
#include <random>

using range_rules::Handle;

namespace {

/// The Cut tab, with a recording of single-coloured frames in the store.
class CutTab : public ControllerFixture {
protected:
    void haveRecording(int frames, std::uint64_t rate) {
        delegate->recording.array_Images.emplace();
        for (int frame = 0; frame < frames; ++frame) {
            delegate->recording.array_Images->push_back(
                plainImage({64, 36}, colourOf(frame).rgb()));
        }
        delegate->recording.setU_Record_Current_Frame(static_cast<std::uint64_t>(frames));
        delegate->recording.setU_Record_Current_FPS(rate);
        put(frameFile(0), "present");
        delegate->shell.tabviewMain()->selectTabViewItemAtIndex(1);
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

    void drag(double from, double to) {
        const int y = strip->height() / 2;
        QTest::mousePress(strip, Qt::LeftButton, {}, QPoint(static_cast<int>(from), y));
        QTest::mouseMove(strip, QPoint(static_cast<int>(to), y));
        QTest::mouseRelease(strip, Qt::LeftButton, {}, QPoint(static_cast<int>(to), y));
    }

    View_Cut_Range *strip = ui().viewCutRange;
    View_Cut_Preview *preview = ui().viewCutPreview;
};

std::uint64_t distance(std::uint64_t a, std::uint64_t b) { return a < b ? b - a : a - b; }

} // namespace

TEST_F(CutTab, stripAndPreviewAreEquallyWideAtEverySize) {
    haveRecording(10, 5);
    for (const QSize size : {QSize(556, 425), QSize(803, 611), QSize(1920, 1080)}) {
        window()->resize(size);
        QTest::qWait(0);
        EXPECT_EQ(strip->width(), preview->width());
        EXPECT_EQ(strip->x(), preview->x());
    }
}

TEST_F(CutTab, withoutARecordingItSaysSoInWhiteOnBlack) {
    delegate->shell.tabviewMain()->selectTabViewItemAtIndex(1);
    const QImage shown = preview->grab().toImage();
    bool white = false;
    for (int x = 0; x < shown.width(); ++x)
        white |= shown.pixelColor(x, shown.height() / 2) == QColor(Qt::white);
    EXPECT_TRUE(white);
    EXPECT_EQ(shown.pixelColor(2, 2), QColor(Qt::black));
    delegate->trimEditor.togglePlayback();
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_STOP);
}

TEST_F(CutTab, stripShowsHandlesAndBandInTheirColoursAndAPlayheadWhilePlaying) {
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

    delegate->OnCutPlay(nullptr);
    EXPECT_EQ(colourAt(2), QColor(0, 0, 255));
    EXPECT_NEAR(colourAt(W / 2).red(), 128, 1);
    // Nothing can be moved now, not even by a press that hits the playhead.
    const float before = delegate->trim.f_Cut_Percent_Menor();
    drag(2, W / 2);
    QTest::keyClick(strip, Qt::Key_Right);
    EXPECT_EQ(delegate->trim.f_Cut_Percent_Menor(), before);
}

TEST_F(CutTab, playbackLoopsOverTheRangePausesResumesAndStartsAfreshAfterStop) {
    haveRecording(10, 60);
    strip->moveToFrame(Handle::Menor, 3);
    strip->moveToFrame(Handle::Maior, 6);
    delegate->OnCutPlay(nullptr);
    ASSERT_TRUE(delegate->trim.timerPlayRefresh);
    EXPECT_EQ(delegate->trim.timerPlayRefresh->interval(), 1.0 / 60.0);
    delegate->trim.timerPlayRefresh.reset(); // From here the test is the clock.
    QList<int> shown;
    for (int tick = 0; tick < 5; ++tick) {
        shown << shownFrame();
        delegate->TimerRefreshPlayRoutine();
    }
    EXPECT_EQ(shown, QList<int>({3, 4, 5, 6, 3}));
    delegate->OnCutPause(nullptr);
    EXPECT_EQ(shownFrame(), 4);
    delegate->OnCutPlay(nullptr);
    delegate->TimerRefreshPlayRoutine();
    EXPECT_EQ(shownFrame(), 5);
    delegate->OnCutStop(nullptr);
    EXPECT_FALSE(delegate->trim.timerPlayRefresh);
    EXPECT_EQ(delegate->trim.uCurrentFrame(), 5u);
    EXPECT_EQ(shownFrame(), 3);
    delegate->OnCutPlay(nullptr);
    EXPECT_EQ(shownFrame(), 3);
}

TEST_F(CutTab, thePreviewShowsTheFrameAtTheHandleInHandAndTheFirstAfterStop) {
    haveRecording(10, 5);
    const double W = strip->width();
    strip->grab(); // A handle can be hit where it was drawn.
    drag(W - 3, W * 0.65);
    EXPECT_EQ(shownFrame(), 7);
    strip->setFocus();
    QTest::keyClick(strip, Qt::Key_Left);
    EXPECT_EQ(shownFrame(), 6);
    strip->grab();
    drag(2, W * 0.25);
    EXPECT_EQ(shownFrame(), 3);
    // Past the other one: what is in hand is then the upper handle.
    strip->grab();
    drag(W * 0.25 + 2, W * 0.85);
    EXPECT_EQ(shownFrame(), 9);
    delegate->OnCutPlay(nullptr);
    delegate->OnCutStop(nullptr);
    EXPECT_EQ(shownFrame(), static_cast<int>(delegate->trim.uFirstFrame()));
    // Beyond the strip's end a handle is at the end, and the last frame is shown.
    strip->grab();
    drag(W * 0.85 - 3, W + 30);
    EXPECT_EQ(delegate->trim.f_Cut_Percent_Maior(), 100.0f);
    EXPECT_EQ(shownFrame(), 9);

    delegate->trimEditor.keepWholeRecording();
    EXPECT_EQ(shownFrame(), 0);
}

TEST_F(CutTab, aRangeAtTheVeryEndShowsTheLastFrameInPlaybackToo) {
    haveRecording(10, 5);
    strip->moveToFrame(Handle::Menor, 10);
    EXPECT_EQ(shownFrame(), 9);
    EXPECT_EQ(delegate->trim.uFirstFrame(), 10u);
    delegate->OnCutPlay(nullptr);
    delegate->TimerRefreshPlayRoutine();
    EXPECT_EQ(shownFrame(), 9);
    strip->grab();
}

TEST_F(CutTab, whateverIsPressedTheHandlesStayInOrderAndAKeyMovesOneFrame) {
    const unsigned seed = std::random_device{}();
    RecordProperty("seed", std::to_string(seed));
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto upTo = [&random](int most) {
        return std::uniform_int_distribution<int>(0, most)(random);
    };
    haveRecording(upTo(48) + 2, static_cast<std::uint64_t>(upTo(60)));
    window()->activateWindow();
    strip->setFocus();
    const auto frames = [&] {
        return std::pair(strip->frameOf(Handle::Menor), strip->frameOf(Handle::Maior));
    };
    const Qt::Key keys[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Tab,  Qt::Key_Backtab,
                            Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    for (int step = 0; step < 400; ++step) {
        const Qt::Key key = keys[upTo(7)];
        const auto before = frames();
        const bool stopped = delegate->trim.m_PlayStatus() == PLAY_STATUS_STOP;
        const std::uint64_t chosen = strip->frameOf(strip->chosenHandle());
        const bool atEnd = key == Qt::Key_Left ? chosen == 0 : chosen == strip->frameCount();
        const QRectF handle = upTo(1) == 0 ? strip->rectMenor() : strip->rectMaior();
        switch (upTo(8)) {
        case 0:
            delegate->OnCutPlay(nullptr);
            break;
        case 1:
            delegate->OnCutPause(nullptr);
            break;
        case 2:
            delegate->OnCutStop(nullptr);
            break;
        case 3:
            delegate->TimerRefreshPlayRoutine();
            break;
        case 4:
            drag(handle.center().x(), upTo(strip->width() + 40) - 20);
            break;
        default:
            QTest::keyClick(strip, key);
            const auto after = frames();
            if (key == Qt::Key_Left || key == Qt::Key_Right) {
                ASSERT_EQ(after != before, stopped && !atEnd) << "step " << step;
                ASSERT_LE(distance(before.first, after.first) +
                              distance(before.second, after.second),
                          1u);
            }
        }
        ASSERT_LE(delegate->trim.f_Cut_Percent_Menor(), delegate->trim.f_Cut_Percent_Maior());
        ASSERT_FALSE(strip->grab().isNull());
        ASSERT_FALSE(preview->grab().isNull());
    }
}

TEST_F(CutTab, aSelectedPartIsLeftOutOfEverythingAndComesBack) {
    haveRecording(10, 5);
    const double W = strip->width();
    const auto shown = [this] {
        QList<int> frames;
        delegate->OnCutPlay(nullptr);
        delegate->trim.timerPlayRefresh.reset();
        for (int tick = 0; tick < 10; ++tick) {
            frames << shownFrame();
            delegate->TimerRefreshPlayRoutine();
        }
        delegate->OnCutStop(nullptr);
        return frames;
    };
    const auto redAt = [&](double x) {
        return strip->grab().toImage().pixelColor(static_cast<int>(x), 3);
    };
    EXPECT_FALSE(ui().btnCutDelete->isEnabled());
    drag(W * 0.35, W * 0.58);
    ASSERT_TRUE(delegate->trimEditor.selection());
    EXPECT_EQ(*delegate->trimEditor.selection(), (FrameRuns::Run{3, 5}));
    EXPECT_EQ(shownFrame(), 5) << "where the drag is";
    EXPECT_NE(redAt(W * 0.45), QColor(0, 255, 0)) << "marked";
    ASSERT_TRUE(ui().btnCutDelete->isEnabled());
    ui().menuitemActionCutDelete->trigger();
    EXPECT_FALSE(ui().btnCutDelete->isEnabled());
    EXPECT_NE(redAt(W * 0.45), QColor(0, 255, 0)) << "hatched";
    EXPECT_EQ(redAt(W * 0.7), QColor(0, 255, 0));
    EXPECT_EQ(shown(), QList<int>({0, 1, 2, 6, 7, 8, 9, 0, 1, 2}));
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept.count(), 7u);

    // By keys, from the frame at the handle on: the first step selects that frame.
    QTest::keyClick(strip, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(strip, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(*delegate->trimEditor.selection(), (FrameRuns::Run{0, 1}));
    QTest::keyClick(strip, Qt::Key_Escape);
    EXPECT_FALSE(delegate->trimEditor.selection());
    drag(W * 0.85, W * 0.65);
    EXPECT_EQ(*delegate->trimEditor.selection(), (FrameRuns::Run{6, 8}));
    ui().btnCutDelete->click();
    EXPECT_EQ(shown(), QList<int>({0, 1, 2, 9, 0, 1, 2, 9, 0, 1}));

    ui().menuitemActionCutUndo->trigger();
    ui().menuitemActionCutUndo->trigger();
    EXPECT_FALSE(ui().btnCutUndo->isEnabled());
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept.count(), 10u);
    ui().menuitemActionCutRedo->trigger();
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept.count(), 7u);
    QTest::mouseClick(strip, Qt::LeftButton, {}, QPoint(static_cast<int>(W / 2), 5));
    EXPECT_FALSE(delegate->trimEditor.selection()) << "a click selects nothing";
    delegate->trimEditor.keepWholeRecording();
    EXPECT_FALSE(delegate->trimEditor.mayUndo() || delegate->trimEditor.mayRedo());
}

TEST_F(CutTab, stillTimeIsCutToTheLengthThatWasChosen) {
    haveRecording(20, 4);
    auto &frames = *delegate->recording.array_Images;
    for (std::size_t frame = 3; frame < 15; ++frame)
        frames[frame] = frame < 9 ? frames[2] : plainImage({64, 36}, colourOf(2).rgb());
    ui().btnCutStill->click();
    const FrameRuns kept = delegate->exporter.timingRequest({}).kept;
    EXPECT_EQ(kept, FrameRuns::of(0, 20).without({6, 14})) << "a second of four frames is left";
    ui().btnCutStill->menu()->actions().first()->trigger();
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept.count(), 9u);
    ui().btnCutStill->click();
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept.count(), 9u) << "nothing is longer";
    ui().menuitemActionCutUndo->trigger();
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept, kept);
}
