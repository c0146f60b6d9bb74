// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/contrast.h"
#include "shell/tab_view.h"
#include "tests/controller/controller_fixture.h"
#include "tests/support/files.h"
#include "trim/strip_look.h"
#include "trim/view_cut_preview.h"
#include "trim/view_cut_range.h"

#include <QMenu>
#include <QTest>

#include <algorithm>

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

    /// What the strip shows at x.
    QColor stripColour(double x) {
        return strip->grab().toImage().pixelColor(static_cast<int>(x), filmMiddle);
    }

    void settlePictures() {
        strip->grab(); // asks for them
        ASSERT_TRUE(QTest::qWaitFor([this] { return strip->arePicturesComplete(); }));
    }

    /// Begins to play; from here the test is the clock.
    void play() {
        delegate->OnCutPlay(nullptr);
        delegate->trim.timerPlayRefresh.reset();
    }

    /// The frames that so many ticks show, the one that is shown already first.
    QList<int> played(int ticks) {
        QList<int> frames;
        for (int tick = 0; tick < ticks; ++tick) {
            frames << shownFrame();
            delegate->TimerRefreshPlayRoutine();
        }
        return frames;
    }

    void drag(double from, double to) {
        const int y = filmMiddle;
        QTest::mousePress(strip, Qt::LeftButton, {}, QPoint(static_cast<int>(from), y));
        QTest::mouseMove(strip, QPoint(static_cast<int>(to), y));
        QTest::mouseRelease(strip, Qt::LeftButton, {}, QPoint(static_cast<int>(to), y));
    }

    static constexpr int filmMiddle = strip_look::filmTop + strip_look::filmHeight / 2;
    View_Cut_Range *strip = ui().viewCutRange;
    View_Cut_Preview *preview = ui().viewCutPreview;
};

} // namespace

TEST_F(CutTab, withoutARecordingItSaysSoInWhiteOnBlack) {
    delegate->shell.tabviewMain()->selectTabViewItemAtIndex(1);
    const QImage shown = preview->grab().toImage();
    bool white = false;
    for (int x = 0; x < shown.width(); ++x)
        white |= shown.pixelColor(x, shown.height() / 2) == QColor(Qt::white);
    EXPECT_TRUE(white);
    EXPECT_EQ(shown.pixelColor(2, 2), QColor(Qt::black));
    ui().menuitemActionCutPlay->trigger();
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_STOP);
}

TEST_F(CutTab, noBackgroundIsSeenBetweenThePictures) {
    haveRecording(1, 5);
    // Where the pictures' places are a little wider than whole pixels, and one that is much wider.
    for (const int width : {640, 711, 782, 800}) {
        window()->resize(window()->width() + width - strip->width(), 540);
        settlePictures();
        ASSERT_EQ(strip->width(), width);
        const QImage shown = strip->grab().toImage();
        for (int x = strip_look::knobWidth; x < shown.width() - strip_look::knobWidth; ++x)
            ASSERT_EQ(shown.pixelColor(x, filmMiddle), colourOf(0)) << x << " of " << width;
    }
}

TEST_F(CutTab, thePicturesAreOfTheirTimesAndPartsThatAreLeftOutAreDarkened) {
    haveRecording(10, 5);
    settlePictures();
    const double W = strip->width();
    const auto isFrame = [](QColor colour, int frame) { return colour == colourOf(frame); };
    for (const int frame : {1, 3, 5, 8})
        EXPECT_TRUE(isFrame(stripColour(W * (frame + 0.5) / 10), frame)) << frame;
    // Beyond a handle.
    strip->moveToFrame(StripPart::Menor, 3);
    delegate->trimEditor.showFrame(9);
    const QColor out = stripColour(W * 0.15);
    EXPECT_LT(out.lightness(), colourOf(1).lightness() / 2);
    EXPECT_TRUE(isFrame(stripColour(W * 0.55), 5));
    // What was deleted is darkened as well, and hatched in both tones.
    delegate->trimEditor.select(5, 6);
    EXPECT_NE(stripColour(W * 0.55), colourOf(5)) << "marked";
    delegate->trimEditor.deleteSelection();
    const QImage strips = strip->grab().toImage();
    int light = 0;
    int dark = 0;
    for (int x = static_cast<int>(W * 0.51); x < W * 0.69; ++x) {
        const int tone = strips.pixelColor(x, filmMiddle).lightness();
        light += tone > 150 ? 1 : 0;
        dark += tone < 60 ? 1 : 0;
    }
    EXPECT_GT(light, 5);
    EXPECT_GT(dark, 20);
    EXPECT_TRUE(isFrame(stripColour(W * 0.75), 7)) << "and the rest as before";

    // Another recording, in which the same frames show something else and files are missing.
    auto &frames = *delegate->recording.array_Images;
    std::ranges::reverse(frames);
    delegate->trimEditor.keepWholeRecording();
    strip->grab();
    settlePictures();
    EXPECT_TRUE(isFrame(stripColour(W * 0.35), 6));
    // Without a store, the files; one that cannot be read stays blank.
    for (int frame = 0; frame < 10; ++frame)
        if (frame != 2)
            frames[static_cast<std::size_t>(frame)].toQImage().save(frameFile(frame));
    delegate->recording.array_Images.reset();
    strip->grab();
    settlePictures();
    EXPECT_TRUE(isFrame(stripColour(W * 0.35), 6));
    EXPECT_EQ(stripColour(W * 0.25).rgb(), strip->palette().color(QPalette::Mid).rgb());
}

TEST_F(CutTab, everyShapeHasALightAndADarkEdgeAtEveryScaleOfColours) {
    haveRecording(10, 5);
    settlePictures();
    delegate->trimEditor.showFrame(5);
    for (const QColor accent : {QColor(Qt::white), QColor(Qt::black), QColor(48, 140, 198)}) {
        QPalette palette = strip->palette();
        palette.setColor(QPalette::Highlight, accent);
        strip->setPalette(palette);
        const QImage shown = strip->grab().toImage();
        for (const QRectF &shape :
             {strip->rectMenor(), strip->rectMaior(), strip->rectPlayhead()}) {
            std::vector<QColor> tones;
            for (double x = shape.left() - 2; x < shape.right() + 2; ++x)
                tones.push_back(shown.pixelColor(
                    std::clamp(static_cast<int>(x), 0, shown.width() - 1), filmMiddle));
            const auto [darkest, lightest] = std::ranges::minmax(tones, {}, luminance);
            EXPECT_GE(contrast(darkest, lightest), leastContrast) << shape.left();
        }
    }
}

TEST_F(CutTab, whatIsInHandShowsItsFrameAndPausesPlayback) {
    haveRecording(10, 60);
    const double W = strip->width();
    const auto dragAndShow = [this](double from, double to) {
        strip->grab(); // A handle can be hit where it was drawn.
        drag(from, to);
        return shownFrame();
    };
    play();
    for (int tick = 0; tick < 4; ++tick)
        delegate->TimerRefreshPlayRoutine();
    strip->grab();
    EXPECT_NEAR(strip->rectPlayhead().left(), 4 * W / 10, 0.01);
    EXPECT_EQ(strip->rectMenor().left(), 0.0);
    EXPECT_EQ(strip->rectMenor().width(), 12.0);
    EXPECT_EQ(strip->rectMaior().right(), W);

    EXPECT_EQ(dragAndShow(W - 3, W * 0.65), 7);
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_PAUSE);
    EXPECT_NEAR(delegate->trim.f_Cut_Percent_Maior(), 65.0f, 0.5f);
    strip->setFocus();
    QTest::keyClick(strip, Qt::Key_Left);
    EXPECT_EQ(shownFrame(), 6);
    EXPECT_EQ(dragAndShow(2, W * 0.25), 3);
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_PageUp, Qt::Key_PageDown}) {
        QTest::keyClick(strip, key);
        EXPECT_LE(strip->frameOf(StripPart::Menor), strip->frameOf(StripPart::Maior)) << key;
    }
    strip->moveToFrame(StripPart::Menor, 3);
    strip->moveToFrame(StripPart::Maior, 6);
    EXPECT_EQ(dragAndShow(W * 0.25 + 2, W * 0.85), 9) << "past the other one: now the upper handle";
    EXPECT_EQ(dragAndShow(W * 0.85 - 3, W + 30), 9) << "beyond the strip's end it is at the end";
    EXPECT_EQ(delegate->trim.f_Cut_Percent_Maior(), 100.0f);
    delegate->OnCutStop(nullptr);
    EXPECT_EQ(shownFrame(), static_cast<int>(delegate->trim.uFirstFrame()));
    delegate->trimEditor.keepWholeRecording();
    EXPECT_EQ(shownFrame(), 0);

    // And so does the playhead, by its knob, beyond what is kept.
    strip->moveToFrame(StripPart::Maior, 6);
    play();
    for (int tick = 0; tick < 4; ++tick)
        delegate->TimerRefreshPlayRoutine();
    strip->grab();
    const QPoint knob = strip->areaOf(StripPart::Playhead).center();
    const QPoint far(static_cast<int>(W * 0.85), knob.y() + 20);
    QTest::mousePress(strip, Qt::LeftButton, {}, knob);
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_PLAY);
    QTest::mouseMove(strip, far);
    QTest::mouseRelease(strip, Qt::LeftButton, {}, far);
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_PAUSE);
    EXPECT_EQ(shownFrame(), 8);
    EXPECT_FALSE(delegate->trimEditor.selection());
}

TEST_F(CutTab, aClickShowsAFrameWhereverItIsAndADragOfFourPointsSelects) {
    haveRecording(10, 60);
    const double W = strip->width();
    const auto click = [this](double x) {
        QTest::mouseClick(strip, Qt::LeftButton, {}, QPoint(static_cast<int>(x), filmMiddle));
    };
    const auto playFrom = [this] {
        play();
        const int first = shownFrame();
        delegate->OnCutStop(nullptr);
        return first;
    };
    delegate->trimEditor.select(4, 5);
    delegate->trimEditor.deleteSelection();
    strip->moveToFrame(StripPart::Maior, 7);
    strip->grab();
    const struct {
        double at;
        int frame;
        int playedFrom;
    } cases[] = {{0.25, 2, 2}, {0.45, 4, 6}, {0.95, 9, 0}};
    for (const auto &[at, frame, playedFrom] : cases) {
        click(W * at);
        EXPECT_EQ(delegate->trim.uCurrentFrame(), static_cast<std::uint64_t>(frame));
        EXPECT_EQ(shownFrame(), frame);
        EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_STOP);
        EXPECT_TRUE(delegate->tabViewShouldSelectTabViewItem(QStringLiteral("3")));
        EXPECT_EQ(playFrom(), playedFrom);
        EXPECT_EQ(shownFrame(), 0) << "after Stop";
    }
    EXPECT_EQ(playFrom(), 0) << "nothing was chosen since Stop";

    drag(W * 0.25, W * 0.25 + 3);
    EXPECT_FALSE(delegate->trimEditor.selection());
    drag(W * 0.25, W * 0.25 + 5);
    ASSERT_TRUE(delegate->trimEditor.selection());
    drag(W * 0.2, W * 0.35);
    click(W * 0.3);
    EXPECT_TRUE(delegate->trimEditor.selection()) << "within it";
    click(W * 0.55);
    EXPECT_FALSE(delegate->trimEditor.selection());

    play();
    click(W * 0.65);
    EXPECT_EQ(shownFrame(), 6);
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_PLAY) << "it goes on from there";
    delegate->TimerRefreshPlayRoutine();
    EXPECT_EQ(shownFrame(), 7);
    delegate->OnCutPause(nullptr);
    click(W * 0.85);
    EXPECT_EQ(shownFrame(), 8);
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_PAUSE);
}

TEST_F(CutTab, keysAreCommandsOfThisTabUnlessWhatHasTheFocusUsesThem) {
    haveRecording(30, 60);
    window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, with);
    };
    Q_EMIT delegate->recorder.recordingReady();
    ASSERT_EQ(QApplication::focusWidget(), ui().btnCutPlay) << "the next step";
    press(Qt::Key_Right);
    EXPECT_EQ(shownFrame(), 1);
    QTest::mouseClick(strip, Qt::LeftButton, {}, QPoint(strip->width() / 2, filmMiddle));
    QTest::mouseClick(ui().btnCutRedo, Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), strip) << "where the keys are wanted";
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers with;
        int shown;
    } cases[] = {{Qt::Key_Right, {}, 16},
                 {Qt::Key_Left, {}, 15},
                 {Qt::Key_Left, Qt::ShiftModifier, 5},
                 {Qt::Key_Right, Qt::ShiftModifier, 15},
                 {Qt::Key_Right, Qt::ShiftModifier, 25},
                 {Qt::Key_Right, Qt::ShiftModifier, 29},
                 {Qt::Key_Home, {}, 0},
                 {Qt::Key_End, {}, 29}};
    for (const auto &[key, with, shown] : cases) {
        press(key, with);
        EXPECT_EQ(shownFrame(), shown) << key;
    }
    press(Qt::Key_Home);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_I);
    EXPECT_EQ(strip->frameOf(StripPart::Menor), 10u);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_O);
    EXPECT_EQ(strip->frameOf(StripPart::Maior), 20u);
    EXPECT_EQ(shownFrame(), 20);
    // A selection from the playhead on.
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    ASSERT_TRUE(delegate->trimEditor.selection());
    EXPECT_EQ(*delegate->trimEditor.selection(), (FrameRuns::Run{19, 20}));
    press(Qt::Key_Delete);
    EXPECT_EQ(delegate->trimEditor.leftOut().count(), 2u);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(delegate->trimEditor.leftOut().count(), 0u);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(delegate->trimEditor.leftOut().count(), 2u);

    press(Qt::Key_Space);
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_PLAY);
    press(Qt::Key_Space);
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_PAUSE);
    press(Qt::Key_Return);
    EXPECT_EQ(delegate->trim.m_PlayStatus(), PLAY_STATUS_PLAY);
    // A button takes Space for itself, and passes the focus on so that Space plays and pauses.
    ui().btnCutStop->setFocus();
    for (const PlayStatus status :
         {PLAY_STATUS_STOP, PLAY_STATUS_PLAY, PLAY_STATUS_PAUSE, PLAY_STATUS_PLAY}) {
        press(Qt::Key_Space);
        EXPECT_EQ(delegate->trim.m_PlayStatus(), status);
    }
    delegate->OnMenuTabGIF();
    EXPECT_EQ(ui().labelStatus->text(), qtTrId("IDD_TAB_NEEDS_STOP_PLAYBACK"));
    delegate->OnCutStop(nullptr);
    // The tabs take the arrows.
    delegate->trimEditor.showFrame(12);
    ui().btnCutUndo->setFocus();
    press(Qt::Key_Right);
    EXPECT_EQ(shownFrame(), 13);
    ui().tabBar->setFocus();
    press(Qt::Key_Left);
    EXPECT_EQ(delegate->shell.tabviewMain()->selectedIndex(), 0);
    // Not on another tab.
    ui().btnRecordRegion->setFocus();
    press(Qt::Key_Home);
    press(Qt::Key_I);
    EXPECT_EQ(delegate->trim.uCurrentFrame(), 13u);
    EXPECT_EQ(strip->frameOf(StripPart::Menor), 10u);
}

TEST_F(CutTab, playbackLoopsOverTheRangePausesResumesAndStartsAfreshAfterStop) {
    haveRecording(10, 60);
    strip->moveToFrame(StripPart::Menor, 3);
    strip->moveToFrame(StripPart::Maior, 6);
    delegate->OnCutPlay(nullptr);
    ASSERT_TRUE(delegate->trim.timerPlayRefresh);
    EXPECT_EQ(delegate->trim.timerPlayRefresh->interval(), 1.0 / 60.0);
    delegate->trim.timerPlayRefresh.reset();
    EXPECT_EQ(played(5), QList<int>({3, 4, 5, 6, 3}));
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

TEST_F(CutTab, aSelectedPartIsLeftOutOfEverythingAndComesBack) {
    haveRecording(10, 5);
    const double W = strip->width();
    const auto shown = [this] {
        play();
        const QList<int> frames = played(10);
        delegate->OnCutStop(nullptr);
        return frames;
    };
    EXPECT_FALSE(ui().btnCutDelete->isEnabled());
    drag(W * 0.35, W * 0.58);
    ASSERT_TRUE(delegate->trimEditor.selection());
    EXPECT_EQ(*delegate->trimEditor.selection(), (FrameRuns::Run{3, 5}));
    EXPECT_EQ(shownFrame(), 5) << "where the drag is";
    ASSERT_TRUE(ui().btnCutDelete->isEnabled());
    ui().menuitemActionCutDelete->trigger();
    EXPECT_FALSE(ui().btnCutDelete->isEnabled());
    EXPECT_EQ(shownFrame(), 6) << "what follows it";
    EXPECT_EQ(shown(), QList<int>({6, 7, 8, 9, 0, 1, 2, 6, 7, 8}));
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept.count(), 7u);

    preview->grab();
    EXPECT_EQ(ui().labelCutRange->text(),
              QStringLiteral("Kept: 1.4\u00a0s of 2.0\u00a0s · 7 of 10 frames"));
    EXPECT_EQ(ui().labelCutTime->text(), QStringLiteral("0:00.0"));

    // By keys, from the frame at the handle on: the first step selects that frame.
    strip->clearFocus();
    strip->setFocus(Qt::TabFocusReason);
    QTest::keyClick(strip, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(strip, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(*delegate->trimEditor.selection(), (FrameRuns::Run{0, 1}));
    QTest::keyClick(strip, Qt::Key_Escape);
    EXPECT_FALSE(delegate->trimEditor.selection());
    drag(W * 0.85, W * 0.65);
    EXPECT_EQ(*delegate->trimEditor.selection(), (FrameRuns::Run{6, 8}));
    ui().btnCutDelete->click();
    EXPECT_EQ(shown(), QList<int>({9, 0, 1, 2, 9, 0, 1, 2, 9, 0}));

    ui().menuitemActionCutUndo->trigger();
    ui().menuitemActionCutUndo->trigger();
    EXPECT_FALSE(ui().btnCutUndo->isEnabled());
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept.count(), 10u);
    ui().menuitemActionCutRedo->trigger();
    EXPECT_EQ(delegate->exporter.timingRequest({}).kept.count(), 7u);
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
