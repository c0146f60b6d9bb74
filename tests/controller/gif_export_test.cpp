// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/frame_timing.h"
#include "shell/window_progress.h"
#include "tests/controller/export_fixture.h"

#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

using GifExport = ExportTest;

QStringList filesIn(const QString &dir) { return QDir(dir).entryList(QDir::Files); }

bool alike(QColor a, QColor b) {
    // A palette of one colour a frame, through a video: close, not equal.
    constexpr int tolerance = 24;
    return std::abs(a.red() - b.red()) <= tolerance &&
           std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
}

TEST_F(GifExport, GivesTheRangeAsItWasRecordedOverAnOldFile) {
    record(7);
    controller.trim.setUFirstFrame(1);
    controller.trim.setULastFrame(5);
    answers.savePath = place("mine.gif");
    put(answers.savePath, "old");
    ui.radioGIFCustomDimension->click();
    ui.textGIFWidth->setText(QStringLiteral("40"));
    ui.textGIFHeigth->setText(QStringLiteral("30"));
    ui.btnGIFExport->click();

    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Success"));
    EXPECT_EQ(answers.alerts[0].text, controller.texts.s_IDD_GIF_SAVED_OK());
    ASSERT_EQ(answers.panels.size(), 1);
    EXPECT_TRUE(answers.panels[0].startsWith(
        QStringLiteral("Select a folder to save the GIF image|Tovarel 2")));
    EXPECT_TRUE(answers.panels[0].endsWith(QStringLiteral(".gif")));
    EXPECT_TRUE(ui.labelStatus->text().contains(answers.savePath));
    QImageReader gif(answers.savePath);
    ASSERT_EQ(gif.imageCount(), 5);
    EXPECT_EQ(gif.loopCount(), -1) << "for ever";
    for (int frame = 1; frame <= 5; ++frame) {
        const QImage picture = gif.read();
        ASSERT_EQ(picture.size(), QSize(40, 30));
        EXPECT_TRUE(alike(picture.pixelColor(20, 15), colourOf(frame)))
            << frame << picture.pixelColor(20, 15).name().toStdString();
        EXPECT_EQ(gif.nextImageDelay(), 100);
    }
    EXPECT_EQ(filesIn(controller.shell.s_Output_Folder()).size(), 7) << "the recording is whole";
}

TEST_F(GifExport, WritesTheVeryFramesAndDelaysThatTheRateAndTheSpeedAskFor) {
    using namespace frame_timing;
    record(9);
    answers.savePath = place("timed.gif");
    ui.comboGIFRepeat->setCurrentIndex(3);
    ui.comboGIFHold->setCurrentIndex(3);
    const struct {
        double recorded;
        int chosen; // 0 for the recording's own
        double speed;
    } cases[] = {{9.83, 0, 1.0},  {9.83, 0, 4.0}, {9.83, 5, 1.0},
                 {9.83, 24, 0.5}, {59.3, 0, 1.0}, {0.9, 0, 1.5}};
    for (const auto &[recorded, chosen, speed] : cases) {
        SCOPED_TRACE(testing::Message() << recorded << " to " << chosen << ", " << speed);
        auto request = chooseTimes(9, recorded, chosen, speed);
        request.hold = 2.0;
        const auto wanted = timedFrames(request, gifTicks);

        QFile::remove(answers.savePath);
        ui.btnGIFExport->click();
        QImageReader gif(answers.savePath);
        ASSERT_EQ(gif.imageCount(), wanted.size());
        EXPECT_EQ(gif.loopCount(), 2) << "begun again, to be played three times";
        for (const TimedFrame &frame : wanted) {
            const QImage picture = gif.read();
            EXPECT_TRUE(alike(picture.pixelColor(20, 15), colourOf(static_cast<int>(frame.source))))
                << frame.source << ' ' << picture.pixelColor(20, 15).name().toStdString();
            EXPECT_EQ(gif.nextImageDelay(), 10 * static_cast<int>(frame.delay));
        }
    }
}

TEST_F(GifExport, AndTheWebPLeaveNothingWhenTheyAreCancelledInAnyRun) {
    record(4);
    const QString ffmpeg = controller.shell.sffmpegPath();
    const struct {
        const char *run; // a word of its command line; the WebP's are in a file
        bool webp;
        bool byKey;
    } cases[] = {{"640x480", false, false},
                 {"palettegen", false, true},
                 {"paletteuse", false, false},
                 {"scaled%d.png", true, false},
                 {"arguments.txt", true, true}};
    for (const auto &[run, webp, byKey] : cases) {
        SCOPED_TRACE(run);
        answers.alerts.clear();
        const QString sign = place("runs");
        QFile::remove(sign);
        const QString still =
            standIn(QByteArray("case \"$*\" in *") + run + "*) : >'" + QFile::encodeName(sign) +
                    "'; : >\"$last\"; trap '' TERM; exec sleep 1000;; esac; exec '" +
                    QFile::encodeName(ffmpeg) + "' \"$@\"");
        controller.shell.setSffmpegPath(still);
        controller.shell.setSimg2webpPath(still);
        ui.radioGIFCustomDimension->click();
        ui.textGIFWidth->setText(QString::fromLatin1(run) == u"scaled%d.png"
                                     ? QStringLiteral("32")
                                     : QStringLiteral("64"));
        const Canceller canceller(
            controller, [&sign](auto &) { return QFile::exists(sign); }, byKey);
        (webp ? ui.btnWebPGenerate : ui.btnGIFExport)->click();
        EXPECT_TRUE(canceller.since.isValid());
        EXPECT_TRUE(answers.alerts.empty());
        EXPECT_TRUE(answers.panels.isEmpty());
        EXPECT_EQ(ui.labelStatus->text(), qtTrId("IDD_EXPORT_CANCELLED"));
        EXPECT_EQ(controller.windowProgress(), nullptr);
        EXPECT_TRUE(filesIn(controller.shell.s_Export_Folder()).isEmpty());
        EXPECT_TRUE(filesIn(controller.shell.s_Pallete_Folder()).isEmpty());
        EXPECT_EQ(filesIn(controller.shell.s_Output_Folder()).size(), 4);
    }
    // The next one is not cancelled.
    controller.shell.setSffmpegPath(ffmpeg);
    answers.savePath = place("after.gif");
    ui.btnGIFExport->click();
    EXPECT_EQ(QImageReader(answers.savePath).imageCount(), 4);
}

TEST_F(GifExport, FillsTheBarAtAnyRateAndSpeed) {
    record(9);
    double last = -1.0;
    const QObject here;
    QObject::connect(&controller.surroundings.progress, &ProgressSheet::valueChanged, &here,
                     [&last](double value) { last = value; });
    for (const double speed : {0.25, 4.0})
        for (const int chosen : {10, 30})
            for (QPushButton *button : {ui.btnGIFExport, ui.btnWebPGenerate}) {
                ui.radioGIFCustomFPS->click();
                ui.comboGIFFPS->setCurrentIndex(chosen - 1);
                ui.comboGIFSpeed->setCurrentIndex(ui.comboGIFSpeed->findData(speed));
                last = -1.0;
                // Saved: one that is not would be asked about first.
                answers.savePath = place(button == ui.btnGIFExport ? "bar.gif" : "bar.webp");
                button->click();
                EXPECT_NEAR(last, 100.0, 15.0) << speed << ' ' << chosen;
            }
}

TEST_F(GifExport, StagesEveryFrameAndTheFirstSixtyForThePalette) {
    record(62);
    controller.trim.setULastFrame(62); // as the Cut tab has it: one beyond the recording
    ui.btnGIFExport->click();
    EXPECT_TRUE(answers.alerts.empty()) << "a cancelled panel is followed by no alert";
    EXPECT_EQ(answers.panels.size(), 1);
    EXPECT_EQ(filesIn(controller.shell.s_Pallete_Folder()).filter(QStringLiteral("image")).size(),
              60);
    const QString exports = controller.shell.s_Export_Folder();
    EXPECT_EQ(filesIn(exports).size(), 64) << "the frames, the GIF and its note";
    EXPECT_EQ(contentOf(exports + QStringLiteral("/image61.png")), contentOf(frameFile(61)));
    EXPECT_EQ(QImageReader(exports + QStringLiteral("/output.gif")).imageCount(), 62);
}

TEST_F(GifExport, AsAnyOtherEndsAtAMissingFrameAndSaysSo) {
    record(6);
    ASSERT_TRUE(QFile::remove(frameFile(3)));
    for (const auto &[button, name, words] :
         {std::tuple(ui.btnGIFExport, "gap.gif", "IDD_STATUS_GAP"),
          {ui.btnWebPGenerate, "gap.webp", "IDD_STATUS_WEBP_GAP"},
          {ui.btnMP4Generate, "gap.mp4", "IDD_STATUS_MP4_GAP"}}) {
        answers.savePath = place(name);
        button->click();
        EXPECT_TRUE(ui.labelStatus->text().contains(qtTrId(words, 6).arg(3)))
            << ui.labelStatus->text().toStdString();
        if (button != ui.btnMP4Generate) {
            EXPECT_EQ(QImageReader(answers.savePath).imageCount(), 3) << name;
        }
    }
}

TEST_F(GifExport, AndTheWebPRefuseTooFewFramesAndAnEmptySizeBeforeTheyTouchAnything) {
    record(3);
    const QString kept = exportFile("kept");
    put(kept, "kept");
    const auto exportBoth = [this] {
        answers.alerts.clear();
        ui.menuitemActionGIFExport->trigger();
        ui.btnWebPGenerate->click();
    };
    controller.trim.setULastFrame(1);
    exportBoth();
    ASSERT_EQ(answers.alerts.size(), 2u);
    for (const Answerer::Alert &alert : answers.alerts)
        EXPECT_EQ(alert.text, controller.texts.s_IDD_LOW_FRAME_NUMBER());
    controller.trim.setULastFrame(2);
    ui.checkGIFKeepAspectRatio->setChecked(false); // else one side mends the other
    for (auto [field, text] : {std::pair(ui.textGIFWidth, u"abc"), {ui.textGIFHeigth, u""}}) {
        field->setText(QString::fromUtf16(text));
        exportBoth();
        ASSERT_EQ(answers.alerts.size(), 2u);
        for (const Answerer::Alert &alert : answers.alerts)
            EXPECT_EQ(alert.text, controller.texts.s_IDD_INVALID_DIMENSION());
        field->setText(QStringLiteral("64"));
    }
    EXPECT_TRUE(QFile::exists(kept));
}

TEST_F(GifExport, NamesTheSizeThatTheEncoderRefused) {
    record(3);
    ui.checkGIFKeepAspectRatio->setChecked(false); // else the text becomes the number in it
    ui.textGIFWidth->setText(QStringLiteral("320px"));
    ui.btnGIFExport->click();
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
    EXPECT_TRUE(answers.alerts[0].text.contains(QStringLiteral("Invalid size '320pxx48'")));
    EXPECT_TRUE(answers.alerts[0].text.contains(QStringLiteral("320px × 48")));
}

// What else can be wrong with a place is SafeMove's to test.
TEST_F(GifExport, KeepsTheResultWhenItCannotBePlaced) {
    record(3);
    const QString gif = exportFile("output.gif");
    // By a way around: what the panel is given must not hold quotation marks.
    ASSERT_TRUE(QFile::link(controller.shell.s_Output_Folder(), place("link")));
    answers.savePath = place("link/x.gif");
    ui.btnGIFExport->click();
    ASSERT_TRUE(finish());
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
    EXPECT_TRUE(answers.alerts[0].text.contains(gif));
    EXPECT_EQ(QImageReader(gif).imageCount(), 3);
    EXPECT_TRUE(ui.btnFileSave->isVisible());
}

TEST_F(GifExport, CannotBeStartedAgainWhileItRuns) {
    record(3);
    // Assistive technology presses buttons of a window that a sheet blocks.
    QTimer press;
    QObject::connect(&press, &QTimer::timeout, ui.btnGIFExport, [this] {
        ui.btnGIFExport->click();
        ui.btnWebPGenerate->click();
    });
    press.start(1);
    answers.savePath = place("once.gif");
    controller.OnGIFExport(nullptr);
    press.stop();
    EXPECT_EQ(answers.panels.size(), 1);
    EXPECT_EQ(QImageReader(answers.savePath).imageCount(), 3);
}

} // namespace
