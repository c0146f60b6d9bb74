// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/controller/export_fixture.h"

#include <QApplication>
#include <QLocale>
#include <QMainWindow>
#include <QTest>

namespace {

/// The GIF tab of the real window, with a recording of 30 frames at 12 frames per second.
class GifOptions : public ExportTest {
protected:
    GifOptions() { controller.shell.window()->activateWindow(); }

    /// The first frame alone has the size: it is the one that is asked.
    void enterTab(QSize size = {1366, 768}) {
        record(30);
        ASSERT_TRUE(QImage(size, QImage::Format_RGB32).save(frameFile(0)));
        controller.recording.setU_Record_Current_FPS(12);
        controller.exportOptions->resetGIFOptions();
    }
    void chooseCustomSize(bool tied) {
        ui.radioGIFCustomDimension->click();
        if (ui.checkGIFKeepAspectRatio->isChecked() != tied)
            ui.checkGIFKeepAspectRatio->click();
    }
    static void type(QLineEdit *field, const QString &text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        if (text.isEmpty())
            QTest::keyClick(field, Qt::Key_Delete);
    }
    static void enter(QLineEdit *field, const QString &text) {
        type(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }
    std::string summary() const { return ui.labelGIFSummary->text().toStdString(); }
    static std::string figures(int frames, double seconds, const char *rate) {
        return qtTrId("IDD_GIF_SUMMARY", frames)
            .arg(QString::number(seconds, 'f', 1), QString::fromLatin1(rate))
            .toStdString();
    }
    std::string size() const {
        return (ui.textGIFWidth->text() + u'x' + ui.textGIFHeigth->text()).toStdString();
    }
};

} // namespace

TEST_F(GifOptions, BeginWithTheRecordingsOwnSizeAndRate) {
    enterTab({641, 480});
    EXPECT_TRUE(ui.btnGIFExport->isEnabled() && ui.btnWebPGenerate->isEnabled());
    EXPECT_TRUE(ui.radioGIFOriginalDimension->isChecked() && ui.radioGIFOriginalFPS->isChecked());
    EXPECT_FALSE(ui.textGIFWidth->isEnabled() || ui.textGIFHeigth->isEnabled() ||
                 ui.checkGIFKeepAspectRatio->isEnabled() || ui.comboGIFFPS->isEnabled());
    EXPECT_TRUE(ui.checkGIFKeepAspectRatio->isChecked());
    EXPECT_EQ(size(), "641x480");
    EXPECT_EQ(ui.comboGIFFPS->currentText(), QStringLiteral("12"));

    // What would be recorded now is not what was recorded.
    controller.region.setI_Type_Screen_Capture(CAPTURE_FULL_SCREEN);
    controller.capture.setImgScreenCapture(Image::fromQImage({1440, 900, QImage::Format_RGB32}));
    controller.region.setRect_Screen_Region({0, 0, 320, 240});
    controller.recording.setU_Record_Current_FPS(61);
    controller.exportOptions->resetGIFOptions();
    EXPECT_EQ(size(), "641x480");
    ui.radioGIFCustomDimension->click();
    enter(ui.textGIFWidth, QStringLiteral("1282"));
    EXPECT_EQ(size(), "1282x960");
    EXPECT_EQ(ui.comboGIFFPS->currentText(), QStringLiteral("60")) << "never without a selection";
}

TEST_F(GifOptions, FormTwoPairsThatDoNotTouchEachOther) {
    enterTab();
    chooseCustomSize(false);
    type(ui.textGIFWidth, QStringLiteral("500"));
    ui.radioGIFCustomFPS->click();
    ui.comboGIFFPS->setCurrentIndex(29);
    for (int clicks = 0; clicks < 2; ++clicks) {
        EXPECT_TRUE(ui.radioGIFCustomDimension->isChecked() && ui.radioGIFCustomFPS->isChecked());
        EXPECT_FALSE(ui.radioGIFOriginalDimension->isChecked() ||
                     ui.radioGIFOriginalFPS->isChecked());
        EXPECT_TRUE(ui.textGIFWidth->isEnabled() && ui.comboGIFFPS->isEnabled());
        EXPECT_EQ(size(), "500x768");
        // A click on what is on changes nothing.
        ui.radioGIFCustomDimension->click();
        ui.radioGIFCustomFPS->click();
    }
    EXPECT_EQ(summary(), figures(75, 2.5, "30")) << "a rate of its own keeps the length";

    ui.radioGIFOriginalDimension->click();
    EXPECT_EQ(size(), "1366x768");
    EXPECT_FALSE(ui.textGIFWidth->isEnabled());
    EXPECT_TRUE(ui.comboGIFFPS->isEnabled());
    ui.radioGIFOriginalFPS->click();
    EXPECT_EQ(ui.comboGIFFPS->currentIndex(), 11);
    EXPECT_EQ(summary(), figures(30, 2.5, "12"));
}

TEST_F(GifOptions, TellFramesSecondsAndRateThatTheFileWillReallyHave) {
    enterTab();
    EXPECT_EQ(ui.comboGIFSpeed->currentText(), QStringLiteral("1×"));
    ui.comboGIFSpeed->setCurrentIndex(3);
    EXPECT_EQ(ui.comboGIFSpeed->currentText(), QStringLiteral("1.5×"));
    EXPECT_EQ(summary(), figures(30, 1.7, "18"));
    ui.radioGIFCustomFPS->click();
    ui.comboGIFFPS->setCurrentIndex(9);
    EXPECT_EQ(summary(), figures(17, 1.7, "10.2"));
    EXPECT_TRUE(ui.labelGIFThinned->text().isEmpty());
    ui.comboGIFFPS->setCurrentIndex(59);
    EXPECT_EQ(ui.labelGIFThinned->text(), qtTrId("IDD_GIF_THINNED"));
    EXPECT_EQ(summary(),
              "GIF: " + figures(83, 1.7, "49.7") + " · WebP: " + figures(100, 1.7, "60"));
    // The list shows the rate in whole numbers; what counts is the true one.
    controller.recording.setExactRate(12.4);
    ui.radioGIFOriginalFPS->click();
    ui.comboGIFSpeed->setCurrentIndex(2);
    controller.exportOptions->resetGIFOptions();
    EXPECT_EQ(ui.comboGIFFPS->currentText(), QStringLiteral("12"));
    EXPECT_TRUE(ui.labelGIFThinned->text().isEmpty());
    EXPECT_EQ(summary(), figures(30, 2.4, "12.4"));
    ui.radioGIFCustomFPS->click();
    EXPECT_EQ(summary(), figures(29, 2.4, "12"));
}

TEST_F(GifOptions, TieTheOtherSideWhenAFieldSendsItsAction) {
    enterTab();
    chooseCustomSize(true);
    type(ui.textGIFWidth, QStringLiteral("800"));
    EXPECT_EQ(size(), "800x768") << "typing alone derives nothing";
    QTest::keyClick(ui.textGIFWidth, Qt::Key_Return);
    EXPECT_EQ(size(), "800x450");
    ui.textGIFHeigth->setFocus();
    ui.textGIFWidth->setFocus();
    EXPECT_EQ(size(), "800x450") << "passing through an untouched field is no edit";
    type(ui.textGIFHeigth, QStringLiteral("450"));
    ui.textGIFWidth->setFocus();
    EXPECT_EQ(size(), "801x450") << "an edited field sends it when editing ends";
    for (const char16_t *nothing : {u"0", u"abc", u""}) {
        enter(ui.textGIFWidth, QString::fromUtf16(nothing));
        EXPECT_EQ(ui.textGIFHeigth->text(), QStringLiteral("450"));
        EXPECT_EQ(ui.textGIFWidth->text(), QString::fromUtf16(nothing));
    }
    ASSERT_TRUE(QFile::remove(frameFile(0)));
    enter(ui.textGIFWidth, QStringLiteral("100"));
    EXPECT_EQ(size(), "100x450") << "without an original size there is no ratio";
}

TEST_F(GifOptions, StayForTheNextRecordingThatTheyFit) {
    enterTab({800, 600});
    chooseCustomSize(true);
    enter(ui.textGIFWidth, QStringLiteral("400"));
    ui.comboGIFSpeed->setCurrentIndex(4);
    enterTab({800, 400});
    EXPECT_EQ(size(), "400x200") << "the ratio is the new recording's";
    EXPECT_EQ(ui.comboGIFSpeed->currentIndex(), 4);
    enterTab({320, 240});
    EXPECT_TRUE(ui.radioGIFOriginalDimension->isChecked()) << "never made larger unasked";
    EXPECT_EQ(size(), "320x240");
}

TEST_F(GifOptions, DeriveNothingWhileTheSizeIsFree) {
    enterTab();
    chooseCustomSize(false);
    enter(ui.textGIFWidth, QStringLiteral("320.7"));
    EXPECT_EQ(size(), "320.7x768");
    ui.checkGIFKeepAspectRatio->click();
    EXPECT_EQ(size(), "320x181") << "tying derives the height from the width at once";
    ui.checkGIFKeepAspectRatio->click();
    EXPECT_EQ(size(), "320x181");
}

TEST_F(GifOptions, SayWhileTypingWhatTheEncoderWillRefuse) {
    enterTab();
    EXPECT_TRUE(ui.labelDimensionHint->text().isEmpty());
    chooseCustomSize(false);
    type(ui.textGIFHeigth, QStringLiteral("-5"));
    EXPECT_EQ(ui.labelDimensionHint->text(), qtTrId("IDD_HEIGHT_NEGATIVE"));
    type(ui.textGIFWidth, QStringLiteral("320px"));
    EXPECT_EQ(ui.labelDimensionHint->text(), qtTrId("IDD_WIDTH_NOT_PLAIN"));
    type(ui.textGIFWidth, QStringLiteral("320"));
    type(ui.textGIFHeigth, QStringLiteral("180"));
    EXPECT_TRUE(ui.labelDimensionHint->text().isEmpty());
    type(ui.textGIFHeigth, QStringLiteral("0"));
    ui.radioGIFOriginalDimension->click();
    EXPECT_TRUE(ui.labelDimensionHint->text().isEmpty());
}

TEST_F(GifOptions, SayWhileTypingWhatIsWrongWithTheLoops) {
    enterTab();
    const QString usual = ui.labelWebPLoopsHint->text();
    const QString range = qtTrId("IDD_LOOPS_RANGE").arg(QStringLiteral("65,535"));
    for (const char *typed : {"abc", "-1", "65536"}) {
        type(ui.txtWebPLoops, QString::fromLatin1(typed));
        EXPECT_EQ(ui.labelWebPLoopsHint->text(), range);
        EXPECT_EQ(ui.txtWebPLoops->accessibleDescription(), range);
    }
    type(ui.txtWebPLoops, QStringLiteral("3"));
    EXPECT_EQ(ui.labelWebPLoopsHint->text(), usual);
    EXPECT_TRUE(ui.txtWebPLoops->accessibleDescription().isEmpty());
    for (const auto &[entry, loops] : {std::pair(0, "0"), {1, "1"}, {3, "3"}}) {
        ui.comboGIFRepeat->setCurrentIndex(entry);
        EXPECT_EQ(controller.exportOptions->choices().loops, QLatin1String(loops));
    }
    ui.comboGIFHold->setCurrentIndex(3);
    EXPECT_EQ(controller.exporter.timingRequest(controller.exportOptions->choices()).hold, 2.0);
}

TEST_F(GifOptions, ShowTheLimitAsItIsUnderstoodAndTheNextReturnGenerates) {
    enterTab();
    choose(GifPreset::Balanced);
    QLineEdit *field = ui.comboFitUnder->lineEdit();
    for (const auto &[typed, shown, bytes] :
         {std::tuple("8", "8\u00a0MB", 8'000'000), {"200 kB", "200\u00a0kB", 200'000}}) {
        type(field, QString::fromUtf8(typed));
        QTest::keyClick(ui.comboFitUnder, Qt::Key_Return);
        EXPECT_EQ(field->text().replace(QChar(u' '), QChar::Nbsp), QString::fromUtf8(shown));
        EXPECT_EQ(controller.exportOptions->choices().limit.bytes, std::uint64_t(bytes));
        EXPECT_EQ(ui.labelGIFEstimate->text(), qtTrId("IDD_AT_MOST_SIZE").arg(field->text()));
        EXPECT_FALSE(ui.labelFitNote->isHidden()) << "what the limit is kept by";
    }
    EXPECT_TRUE(answers.alerts.empty());
    controller.trim.setULastFrame(1); // an export that ends at its first check
    QTest::keyClick(ui.comboFitUnder, Qt::Key_Return);
    EXPECT_EQ(answers.alerts.size(), 1u);
    ui.radioGIFOriginalFPS->setFocus();
    QTest::keyClick(ui.radioGIFOriginalFPS, Qt::Key_Enter);
    EXPECT_EQ(answers.alerts.size(), 2u);
    ui.comboGIFQuality->setFocus();
    choose(GifPreset::Classic);
    EXPECT_TRUE(ui.labelGIFEstimate->text().isEmpty()) << "it knows no limit";
    EXPECT_TRUE(ui.labelFitNote->isHidden());
}

TEST_F(GifOptions, SayWhatToDoFirstWhereNothingWasRecorded) {
    controller.OnMenuTabGIF();
    EXPECT_EQ(summary(), qtTrId("IDD_RECORD_FIRST").toStdString());
    EXPECT_TRUE(ui.labelInstructions->isVisible());
    EXPECT_TRUE(ui.labelDimensionHint->text().isEmpty());
    enterTab();
    EXPECT_FALSE(ui.labelInstructions->isVisible());
}

TEST_F(GifOptions, ActOnAnEditThatTheExportsShortcutFinds) {
    enterTab();
    chooseCustomSize(true);
    type(ui.textGIFWidth, QStringLiteral("800"));
    controller.trim.setULastFrame(1); // an export that ends at its first check
    QTest::keyClick(ui.textGIFWidth, Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(size(), "800x450");
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].text, controller.texts.s_IDD_LOW_FRAME_NUMBER());
}
