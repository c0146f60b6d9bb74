// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/frame_timing.h"
#include "tests/controller/export_fixture.h"

#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>

#include <sys/resource.h>
#include <unistd.h>

namespace {

class WebPExport : public ExportTest {
protected:
    void recordNoise(int count, QSize size) {
        record(count);
        const std::vector<QImage> pictures = noise(count, size);
        for (int frame = 0; frame < count; ++frame)
            ASSERT_TRUE(pictures[static_cast<std::size_t>(frame)].save(frameFile(frame)));
        controller.exportOptions->resetGIFOptions();
    }
};

TEST_F(WebPExport, HoldsTheRecordingsOwnPixels) {
    record(6);
    choose(GifPreset::Best);
    controller.trim.setUFirstFrame(2);
    answers.savePath = place("mine.webp");
    put(answers.savePath, "old");
    ui.txtWebPLoops->setText(QStringLiteral("3 times"));
    ui.btnWebPGenerate->click();

    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Success"));
    EXPECT_EQ(answers.alerts[0].text, QStringLiteral("Success"));
    ASSERT_EQ(answers.panels.size(), 1);
    EXPECT_TRUE(answers.panels[0].startsWith(
        QStringLiteral("Select a folder to save the WebP image|Tovarel 2")));
    EXPECT_TRUE(answers.panels[0].endsWith(QStringLiteral(".webp")));
    EXPECT_TRUE(ui.labelStatus->text().contains(answers.savePath));
    EXPECT_FALSE(QFile::exists(exportFile("output.webp")));
    EXPECT_TRUE(run("webpinfo", {answers.savePath}).contains("Loop count      : 3"));
    QImageReader webp(answers.savePath);
    ASSERT_EQ(webp.imageCount(), 4);
    for (int frame = 2; frame < 6; ++frame)
        EXPECT_EQ(webp.read().convertToFormat(QImage::Format_RGB32),
                  QImage(frameFile(frame)).convertToFormat(QImage::Format_RGB32))
            << frame;
}

TEST_F(WebPExport, HoldsMoreFramesThanFitOnACommandLine) {
    constexpr int many = 2500;
    record(3);
    for (int frame = 3; frame < many; ++frame)
        ASSERT_EQ(
            link(QFile::encodeName(frameFile(frame % 3)), QFile::encodeName(frameFile(frame))), 0);
    controller.recording.setU_Record_Current_Frame(many);
    controller.trim.setULastFrame(many - 1);
    // The system takes a quarter of the stack's limit for arguments, and 128 KiB at least.
    rlimit before{};
    getrlimit(RLIMIT_STACK, &before);
    const rlimit lower{512 * 1024, before.rlim_max};
    setrlimit(RLIMIT_STACK, &lower);
    answers.savePath = place("long.webp");
    ui.btnWebPGenerate->click();
    setrlimit(RLIMIT_STACK, &before);
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Success"))
        << answers.alerts[0].text.toStdString();
    EXPECT_EQ(run("webpinfo", {answers.savePath}).count("Chunk ANMF"), many);
}

TEST_F(WebPExport, TakesTheSmallerCodingUnlessItMustBeExact) {
    record(5);
    recordNoise(5, {64, 48}); // one coding takes many bytes for it, the other few
    qint64 bytes[2] = {};
    for (const bool exact : {true, false}) {
        choose(exact ? GifPreset::Best : GifPreset::Small);
        answers.savePath = place(exact ? "exact.webp" : "small.webp");
        ui.btnWebPGenerate->click();
        bytes[exact] = QFileInfo(answers.savePath).size();
        const QByteArray info = run("webpinfo", {answers.savePath});
        EXPECT_EQ(info.contains("Chunk VP8L"), exact) << info.toStdString();
    }
    EXPECT_LT(bytes[false], bytes[true]);
    chooseSize(QStringLiteral("16384"), QStringLiteral("48"));
    answers.alerts.clear();
    ui.btnWebPGenerate->click();
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].text, qtTrId("IDD_WIDTH_TOO_LARGE").arg(QStringLiteral("16,383")));
}

TEST_F(WebPExport, SaysAboutHowLargeItWillBe) {
    recordNoise(20, {120, 80});
    const QString plain = ui.btnWebPGenerate->toolTip();
    ASSERT_TRUE(QTest::qWaitFor([&] { return ui.btnWebPGenerate->toolTip() != plain; }, 20'000));
    static const QRegularExpression size(QStringLiteral("([0-9]+)[.,][0-9].kB$"));
    const double kilobytes = size.match(ui.btnWebPGenerate->toolTip()).captured(1).toDouble();
    answers.savePath = place("told.webp");
    ui.btnWebPGenerate->click();
    EXPECT_NEAR(1000 * kilobytes / double(QFileInfo(answers.savePath).size()), 1, 0.3);
    ui.btnGIFSize75->click();
    EXPECT_EQ(ui.btnWebPGenerate->toolTip(), plain) << "not known yet";
}

TEST_F(WebPExport, FitsUnderALimit) {
    recordNoise(9, {120, 80});
    controller.recording.setExactRate(20);
    const auto limited = [&](qint64 bytes) {
        return makeUnder(ui.btnWebPGenerate,
                         bytes > 0 ? QString::number(static_cast<double>(bytes) / 1e6, 'f', 6)
                                   : QString(),
                         "fits.webp");
    };
    const auto expectWithin = [](qint64 bytes, qint64 limit) {
        EXPECT_LE(bytes, limit);
        EXPECT_GE(bytes, limit * 85 / 100);
    };
    choose(GifPreset::Best);
    const qint64 exact = limited(0);
    expectWithin(limited(exact / 3), exact / 3);   // colours
    expectWithin(limited(exact / 20), exact / 20); // and size
    EXPECT_LT(QImageReader(answers.savePath).size().width(), 120);
    EXPECT_TRUE(ui.labelStatus->text().contains(QStringLiteral("×")));

    ui.radioGIFCustomDimension->click();
    answers.choice = QMessageBox::AcceptRole;
    EXPECT_EQ(limited(exact / 20), 0) << "a size that was chosen is kept";
    EXPECT_EQ(answers.questions, 1);
    answers.choice = QMessageBox::DestructiveRole;
    expectWithin(limited(exact / 20), exact / 20);
    EXPECT_EQ(answers.questions, 2);
    EXPECT_EQ(limited(200), 0);
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
    EXPECT_TRUE(
        QDir(controller.shell.s_Export_Folder()).entryList({QStringLiteral("*.webp*")}).isEmpty());
}

TEST_F(WebPExport, HasTheSizeTheRateAndTheSpeedThatWereChosen) {
    record(9);
    answers.savePath = place("timed.webp");
    chooseSize(QStringLiteral("40"), QStringLiteral("20"));
    for (const auto &[chosen, speed] : {std::pair(0, 1.0), {0, 2.0}, {5, 1.0}}) {
        const auto request = chooseTimes(9, 9.83, chosen, speed);
        QFile::remove(answers.savePath);
        ui.btnWebPGenerate->click();
        const QByteArray info = run("webpinfo", {answers.savePath});
        EXPECT_TRUE(info.contains("Canvas size 40 x 20")) << info.toStdString();
        std::vector<std::uint64_t> found;
        static const QRegularExpression duration(QStringLiteral("Duration: (\\d+)"));
        auto each = duration.globalMatch(QString::fromLatin1(info));
        while (each.hasNext())
            found.push_back(each.next().captured(1).toULongLong());
        std::vector<std::uint64_t> wanted;
        for (const auto &frame : timedFrames(request, frame_timing::webpTicks))
            wanted.push_back(frame.delay);
        EXPECT_EQ(found, wanted);
    }
    EXPECT_EQ(QImage(frameFile(0)).size(), QSize(64, 48)) << "the recording is whole";
}

} // namespace
