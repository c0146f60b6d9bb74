// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/fit_limit.h"
#include "export/frame_timing.h"
#include "export/gif_preset.h"
#include "shell/number_text.h"
#include "shell/window_progress.h"
#include "tests/controller/export_fixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <QTest>

namespace {

using frame_timing::TimedFrame;

/// The GIF by the program's own encoder, through the real exporter.
class GifQuality : public ExportTest {
protected:
    /// A recording in memory: a square that moves over a ground of a few colours. Of its files
    /// there is the first one, which the tab is opened by.
    void recordInMemory(int count, QSize size = {200, 120}) {
        record(count);
        std::vector<Image> store;
        for (int frame = 0; frame < count; ++frame) {
            pictures.push_back(pictureOf(frame, size));
            store.push_back(Image::fromQImage(pictures.back()));
            if (frame > 0) {
                ASSERT_TRUE(QFile::remove(frameFile(frame)));
            }
        }
        ASSERT_TRUE(pictures.front().save(frameFile(0)));
        controller.recording.array_Images = std::move(store);
        controller.exportOptions->resetGIFOptions();
    }
    static QImage pictureOf(int frame, QSize size) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(QColor(30, 60, 90));
        QPainter painter(&picture);
        painter.fillRect(0, size.height() / 2, size.width(), size.height(), QColor(200, 190, 13));
        painter.fillRect(3 * frame, 2 * frame, 40, 30, colourOf(frame));
        return picture;
    }
    /// Frames that cost an encoder time.
    void recordNoise(int count, QSize size) {
        record(3);
        std::vector<Image> store;
        for (const QImage &picture : noise(count, size))
            store.push_back(Image::fromQImage(picture));
        controller.recording.setU_Record_Current_Frame(static_cast<std::uint64_t>(count));
        controller.trim.setULastFrame(static_cast<std::uint64_t>(count - 1));
        controller.recording.array_Images = std::move(store);
        chooseSize(QString::number(size.width()), QString::number(size.height()));
    }

    QStringList exported() const {
        return QDir(controller.shell.s_Export_Folder()).entryList(QDir::Files);
    }
    std::string status() const { return ui.labelStatus->text().toStdString(); }

    std::vector<QImage> pictures;
};

TEST_F(GifQuality, ShowsTheVeryFramesForTheVeryTimeInBest) {
    recordInMemory(9);
    choose(GifPreset::Best);
    answers.savePath = place("best.gif");
    const struct {
        double recorded;
        int chosen; // 0 for the recording's own
        double speed;
    } cases[] = {{9.83, 0, 1.0}, {9.83, 5, 1.0}, {9.83, 24, 0.5}, {59.3, 0, 4.0}, {0.9, 0, 1.5}};
    for (const auto &[recorded, chosen, speed] : cases) {
        SCOPED_TRACE(testing::Message() << recorded << " to " << chosen << ", " << speed);
        const auto request = chooseTimes(9, recorded, chosen, speed);
        std::vector<TimedFrame> wanted; // a frame that is repeated is one picture, shown longer
        for (const TimedFrame &frame : timedFrames(request, frame_timing::gifTicks)) {
            if (!wanted.empty() && wanted.back().source == frame.source)
                wanted.back().delay += frame.delay;
            else
                wanted.push_back(frame);
        }
        QFile::remove(answers.savePath);
        ui.btnGIFExport->click();
        QImageReader gif(answers.savePath);
        ASSERT_EQ(gif.imageCount(), wanted.size());
        EXPECT_EQ(gif.loopCount(), -1) << "for ever";
        for (const TimedFrame &frame : wanted) {
            EXPECT_EQ(gif.read().convertToFormat(QImage::Format_RGB32), pictures[frame.source])
                << frame.source;
            EXPECT_EQ(gif.nextImageDelay(), 10 * static_cast<int>(frame.delay));
        }
    }
    EXPECT_TRUE(exported().isEmpty()) << "moved to its place";
}

TEST_F(GifQuality, LaysOutNothingButTheFileWhichIsTheUsersAlone) {
    recordInMemory(4);
    choose(GifPreset::Balanced);
    ui.btnGIFExport->click(); // the panel is cancelled
    // And what the next start finds it by.
    EXPECT_EQ(exported(),
              QStringList({QStringLiteral("output.gif"), QStringLiteral("output.gif.txt")}));
    EXPECT_EQ(QFile::permissions(exportFile("output.gif")) & ~(QFile::ReadUser | QFile::WriteUser),
              QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_TRUE(QDir(controller.shell.s_Pallete_Folder()).isEmpty());
    EXPECT_TRUE(ui.btnFileSave->isVisible());
}

TEST_F(GifQuality, ScalesToTheSizeThatIsTyped) {
    recordInMemory(4);
    for (const GifPreset preset : {GifPreset::Best, GifPreset::Small}) {
        choose(preset);
        for (const QSize size : {QSize(100, 60), QSize(1, 1), QSize(321, 77)}) {
            chooseSize(QString::number(size.width()), QString::number(size.height()));
            answers.savePath = place("scaled.gif");
            QFile::remove(answers.savePath);
            ui.btnGIFExport->click();
            QImageReader gif(answers.savePath);
            const QImage picture = gif.read();
            ASSERT_EQ(picture.size(), size) << status();
            if (size.width() > 1) {
                const QRgb ground = picture.pixel(size.width() - 2, 2);
                EXPECT_LE(std::abs(qRed(ground) - 30) + std::abs(qBlue(ground) - 90), 4);
            }
        }
    }
}

TEST_F(GifQuality, EndsAtAFileThatIsMissingOrBrokenWhereThereIsNoStore) {
    choose(GifPreset::Best);
    answers.savePath = place("gap.gif");
    for (const bool broken : {false, true}) {
        record(6);
        const QByteArray whole = contentOf(frameFile(3));
        if (broken)
            put(frameFile(3), whole.left(whole.size() / 2));
        else
            ASSERT_TRUE(QFile::remove(frameFile(3)));
        ui.btnGIFExport->click();
        QImageReader gif(answers.savePath);
        ASSERT_EQ(gif.imageCount(), 3);
        for (int frame = 0; frame < 3; ++frame)
            EXPECT_EQ(gif.read().pixel(5, 5), colourOf(frame).rgb());
        EXPECT_TRUE(ui.labelStatus->text().contains(qtTrId("IDD_STATUS_GAP", 6).arg(3)));
    }
    answers.alerts.clear();
    put(frameFile(0), "no picture");
    ui.btnGIFExport->click();
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
    EXPECT_TRUE(answers.alerts[0].text.contains(controller.shell.s_Output_Folder()));
    EXPECT_TRUE(exported().isEmpty());
}

TEST_F(GifQuality, EndsAtAFrameOfAnotherSize) {
    recordInMemory(6);
    controller.recording.array_Images->at(4) = plainImage({64, 48}, qRgb(1, 2, 3));
    choose(GifPreset::Best);
    answers.savePath = place("resized.gif");
    ui.btnGIFExport->click();
    EXPECT_EQ(QImageReader(answers.savePath).imageCount(), 4);
    EXPECT_TRUE(ui.labelStatus->text().contains(qtTrId("IDD_STATUS_GAP", 6).arg(4))) << status();
}

TEST_F(GifQuality, SaysWhenNothingMoves) {
    record(4);
    const Image still = plainImage({64, 48}, qRgb(1, 2, 3));
    controller.recording.array_Images = std::vector<Image>(4, still);
    choose(GifPreset::Balanced);
    answers.savePath = place("still.gif");
    ui.btnGIFExport->click();
    EXPECT_EQ(QImageReader(answers.savePath).imageCount(), 1);
    EXPECT_TRUE(ui.labelStatus->text().contains(qtTrId("IDD_STATUS_STILL"))) << status();
}

TEST_F(GifQuality, IsCancelledAtOnceAndLeavesNothing) {
    recordNoise(30, {300, 200});
    choose(GifPreset::Small);
    for (const bool scaled : {false, true}) {
        if (scaled)
            chooseSize(QStringLiteral("600"), QStringLiteral("400"));
        for (const bool byKey : {false, true}) {
            const Canceller canceller(
                controller, [](auto &sheet) { return sheet.doubleValue() > 0; }, byKey);
            ui.btnGIFExport->click();
            ASSERT_TRUE(canceller.since.isValid()) << "it was over before it could be cancelled";
            const qint64 took = canceller.since.elapsed();
            RecordProperty(scaled ? "scaled" : "plain", static_cast<int>(took));
            EXPECT_LT(took, 1000) << "ms; a tenth of that on a machine that does nothing else";
            EXPECT_TRUE(answers.alerts.empty() && answers.panels.isEmpty());
            EXPECT_EQ(ui.labelStatus->text(), qtTrId("IDD_EXPORT_CANCELLED"));
            EXPECT_EQ(controller.windowProgress(), nullptr);
            EXPECT_TRUE(exported().isEmpty());
            EXPECT_TRUE(QFile::exists(frameFile(0)));
        }
    }
    // The next one is not cancelled.
    controller.trim.setULastFrame(2);
    answers.savePath = place("after.gif");
    ui.btnGIFExport->click();
    EXPECT_EQ(QImageReader(answers.savePath).imageCount(), 3);
}

TEST_F(GifQuality, RefusesSizesBeforeItTouchesAnything) {
    record(3);
    choose(GifPreset::Balanced);
    const QString kept = exportFile("kept");
    put(kept, "kept");
    controller.recording.memory = [] { return MemoryState{8'000'000'000, 160'000'000}; };
    const struct {
        const char *width;
        const char *height;
        QString words;
    } cases[] = {{"320px", "48", qtTrId("IDD_WIDTH_NOT_PLAIN")},
                 {"64", "65536", qtTrId("IDD_HEIGHT_TOO_LARGE").arg(QStringLiteral("65,535"))},
                 {"0", "48", controller.texts.s_IDD_INVALID_DIMENSION()},
                 {"65535", "65535", QStringLiteral("80.0\u00a0MB")},
                 {"1200", "1000", QStringLiteral("1200 × 1000")}};
    for (const auto &[width, height, words] : cases) {
        SCOPED_TRACE(testing::Message() << width << 'x' << height);
        answers.alerts.clear();
        chooseSize(QString::fromLatin1(width), QString::fromLatin1(height));
        ui.btnGIFExport->click();
        ASSERT_EQ(answers.alerts.size(), 1u);
        EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
        EXPECT_TRUE(answers.alerts[0].text.contains(words)) << answers.alerts[0].text.toStdString();
        EXPECT_TRUE(QFile::exists(kept));
    }
    EXPECT_TRUE(answers.panels.isEmpty());
    chooseSize(QStringLiteral("640"), QStringLiteral("480"));
    answers.savePath = place("fits.gif");
    ui.btnGIFExport->click();
    EXPECT_EQ(QImageReader(answers.savePath).size(), QSize(640, 480));
}

TEST_F(GifQuality, BeginsWithBalancedAndIsRemembered) {
    choose(GifPreset::Small);
    EXPECT_EQ(TestController().ui().comboGIFQuality->currentText(), qtTrId("IDD_QUALITY_SMALL"));
    for (const char *stored : {"", "something else"}) {
        QSettings().setValue(QStringLiteral("GIFQuality"), QString::fromLatin1(stored));
        EXPECT_EQ(TestController().ui().comboGIFQuality->currentText(),
                  qtTrId("IDD_QUALITY_BALANCED"));
    }
}

TEST_F(GifQuality, TellsHowLargeItWillBe) {
    recordInMemory(12);
    choose(GifPreset::Best);
    const auto said = [&] {
        // The exact size begins with its figure.
        const QString exact = qtTrId("IDD_GIF_SIZE").arg(QString());
        static_cast<void>(QTest::qWaitFor(
            [&] {
                const QString now = ui.labelGIFEstimate->text();
                return now.startsWith(exact) && now.size() > exact.size() &&
                       now[exact.size()].isDigit();
            },
            20'000));
        return ui.labelGIFEstimate->text();
    };
    QString sizes[2];
    for (const bool half : {false, true}) {
        if (half)
            ui.btnGIFSize50->click();
        EXPECT_EQ(ui.textGIFWidth->text(), half ? QStringLiteral("100") : QStringLiteral("200"));
        sizes[half] = said();
        answers.savePath = place(half ? "half.gif" : "whole.gif");
        ui.btnGIFExport->click();
        const auto bytes = static_cast<std::uint64_t>(QFileInfo(answers.savePath).size());
        EXPECT_EQ(sizes[half], qtTrId("IDD_GIF_SIZE").arg(number_text::bytes(bytes)));
    }
    EXPECT_NE(sizes[0], sizes[1]);
    choose(GifPreset::Classic);
    QTest::qWait(500);
    EXPECT_TRUE(ui.labelGIFEstimate->text().isEmpty()) << "nobody knows";
}

TEST_F(GifQuality, FitsUnderALimitAndKeepsWhatWasChosen) {
    recordNoise(12, {160, 120});
    choose(GifPreset::Balanced);
    controller.recording.setExactRate(20);
    const auto limited = [&](const char *limit, const char *file) {
        return makeUnder(ui.btnGIFExport, QString::fromLatin1(limit), file);
    };
    QSet<QString> captions;
    const ProgressSheet &progress = controller.surroundings.progress;
    QObject::connect(&progress, &ProgressSheet::valueChanged, &progress,
                     [&] { captions << progress.windowProgress()->windowTitle(); });
    const qint64 whole = limited("", "whole.gif");
    // The size is the user's: it is lowered only after a question.
    answers.choice = QMessageBox::AcceptRole;
    const QByteArray limit = QByteArray::number(double(whole) / 4e6, 'f', 3);
    EXPECT_EQ(limited(limit, "kept.gif"), 0);
    EXPECT_EQ(answers.questions, 1);
    answers.choice = QMessageBox::DestructiveRole;
    const qint64 quarter = limited(limit, "quarter.gif");
    EXPECT_EQ(answers.questions, 2);
    EXPECT_LE(quarter, whole / 4 + 1000);
    EXPECT_GE(quarter, whole * 85 / 400 - 1000);
    EXPECT_LT(QImageReader(answers.savePath).size().width(), 160);
    EXPECT_EQ(ui.textGIFWidth->text(), QStringLiteral("160"));
    EXPECT_TRUE(ui.labelStatus->text().contains(QStringLiteral("quarter.gif"))) << status();
    // What was given up is said, and that more than one attempt was made.
    const QSize size = QImageReader(answers.savePath).size();
    EXPECT_TRUE(ui.labelFileDrag->text().contains(
        QStringLiteral("%1 × %2").arg(size.width()).arg(size.height())))
        << ui.labelFileDrag->text().toStdString();
    EXPECT_TRUE(captions.contains(
        qtTrId("IDD_PROGRESS_AGAIN")
            .arg(QStringLiteral("2"),
                 fitLimitText(*fitLimitOf(ui.comboFitUnder->currentText()).bytes))));
    limited(QByteArray::number(double(whole) * 0.7e-6, 'f', 3), "slower.gif");
    EXPECT_EQ(QImageReader(answers.savePath).size().width(), 160);
    EXPECT_FALSE(ui.labelFileDrag->text().contains(QStringLiteral("×")))
        << ui.labelFileDrag->text().toStdString();

    EXPECT_EQ(limited("0.001", "tiny.gif"), 0);
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
    EXPECT_TRUE(exported().isEmpty());
    // What is said to be the smallest does fit.
    static const QRegularExpression smallest(QStringLiteral("([0-9.]+)\u00a0kB[^0-9]*$"));
    const QRegularExpressionMatch said = smallest.match(answers.alerts[0].text);
    ASSERT_TRUE(said.hasMatch()) << answers.alerts[0].text.toStdString();
    const double least = said.captured(1).toDouble();
    EXPECT_GT(limited(QByteArray::number((least + 0.1) / 1000), "least.gif"), 900 * least);
    EXPECT_EQ(limited("abc", "wrong.gif"), 0);
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].text, qtTrId("IDD_LIMIT_NOT_NUMBER"));
    EXPECT_EQ(ui.labelFitUnderHint->text(), qtTrId("IDD_LIMIT_NOT_NUMBER"));
}

} // namespace
