// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export_fixture.h"

#include <QDir>
#include <QImageReader>
#include <QLabel>

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
    ui.radioGIFCustomFPS->click();
    ui.comboGIFFPS->setCurrentIndex(4);
    ui.btnGIFExport->click();

    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Success"));
    EXPECT_EQ(answers.alerts[0].text, controller.texts.s_IDD_GIF_SAVED_OK());
    EXPECT_EQ(answers.panels,
              QStringList(QStringLiteral("Select a folder to save the GIF image|output.gif")));
    EXPECT_TRUE(ui.labelStatus->text().contains(answers.savePath));
    EXPECT_EQ(controller.exporting.i_Orig_Duration_in_Seconds(), 1u);
    QImageReader gif(answers.savePath);
    ASSERT_EQ(gif.imageCount(), 5);
    EXPECT_EQ(gif.loopCount(), -1) << "for ever";
    for (int frame = 1; frame <= 5; ++frame) {
        const QImage picture = gif.read();
        ASSERT_EQ(picture.size(), QSize(40, 30));
        EXPECT_TRUE(alike(picture.pixelColor(20, 15), colourOf(frame)))
            << frame << picture.pixelColor(20, 15).name().toStdString();
        EXPECT_EQ(gif.nextImageDelay(), 200);
    }
    EXPECT_EQ(filesIn(controller.shell.s_Output_Folder()).size(), 7) << "the recording is whole";
}

TEST_F(GifExport, StagesEveryFrameAndTheFirstSixtyForThePalette) {
    record(62);
    controller.trim.setULastFrame(62); // as the Cut tab has it: one beyond the recording
    ui.btnGIFExport->click();
    EXPECT_TRUE(answers.alerts.empty()) << "a cancelled panel is followed by nothing";
    EXPECT_EQ(answers.panels.size(), 1);
    EXPECT_TRUE(ui.labelStatus->text().isEmpty()) << ui.labelStatus->text().toStdString();
    EXPECT_EQ(filesIn(controller.shell.s_Pallete_Folder()).filter(QStringLiteral("image")).size(),
              60);
    const QString exports = controller.shell.s_Export_Folder();
    EXPECT_EQ(filesIn(exports).size(), 63);
    EXPECT_EQ(contentOf(exports + QStringLiteral("/image61.png")), contentOf(frameFile(61)));
    EXPECT_EQ(QImageReader(exports + QStringLiteral("/output.gif")).imageCount(), 62);
}

TEST_F(GifExport, SaysHowManyFramesTheGifHoldsWhenOneIsMissing) {
    record(6);
    ASSERT_TRUE(QFile::remove(frameFile(3)));
    answers.savePath = place("gap.gif");
    ui.btnGIFExport->click();
    const int held = QImageReader(answers.savePath).imageCount();
    EXPECT_EQ(held, 3);
    EXPECT_TRUE(ui.labelStatus->text().contains(
        qtTrId("IDD_STATUS_GAP").arg(QString::number(held), QStringLiteral("6"))));
}

TEST_F(GifExport, AndTheWebPRefuseTooFewFramesAndAnEmptySizeBeforeTheyTouchAnything) {
    record(3);
    const QString kept = controller.shell.s_Export_Folder() + QStringLiteral("/kept");
    put(kept, "kept");
    controller.exporting.setI_Orig_Duration_in_Seconds(77);
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
    EXPECT_EQ(controller.exporting.i_Orig_Duration_in_Seconds(), 77u);
    controller.trim.setULastFrame(2);
    for (auto [field, text] : {std::pair(ui.textGIFWidth, u"abc"), {ui.textGIFHeigth, u""}}) {
        field->setText(QString::fromUtf16(text));
        exportBoth();
        ASSERT_EQ(answers.alerts.size(), 2u);
        for (const Answerer::Alert &alert : answers.alerts)
            EXPECT_EQ(alert.text, controller.texts.s_IDD_INVALID_DIMENSION());
        field->setText(QStringLiteral("64"));
    }
    EXPECT_EQ(controller.exporting.i_Orig_Duration_in_Seconds(), 1u);
    EXPECT_TRUE(QFile::exists(kept));
}

TEST_F(GifExport, NamesTheSizeThatTheEncoderRefused) {
    record(3);
    ui.textGIFWidth->setText(QStringLiteral("320px"));
    ui.btnGIFExport->click();
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
    EXPECT_TRUE(answers.alerts[0].text.contains(QStringLiteral("Invalid size '320pxx48'")));
    EXPECT_TRUE(answers.alerts[0].text.contains(QStringLiteral("320px × 48")));
}

TEST_F(GifExport, KeepsTheResultWhenItCannotBePlaced) {
    record(3);
    const QString gif = controller.shell.s_Export_Folder() + QStringLiteral("/output.gif");
    QDir().mkpath(place("folder"));
    for (const QString &path : {place("none/x.gif"), gif,
                                controller.shell.s_Output_Folder() + QStringLiteral("/x.gif")}) {
        SCOPED_TRACE(path.toStdString());
        answers.alerts.clear();
        answers.savePath = path;
        ui.btnGIFExport->click();
        ASSERT_EQ(answers.alerts.size(), 1u);
        EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
        EXPECT_TRUE(answers.alerts[0].text.contains(gif));
        EXPECT_EQ(QImageReader(gif).imageCount(), 3);
    }
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
