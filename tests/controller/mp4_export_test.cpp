// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "tests/controller/export_fixture.h"

namespace {

class MP4Export : public ExportTest {};

TEST_F(MP4Export, PlaysTheFramesInAnySizeForAsLongAsTheyTook) {
    record(9);
    controller.recording.setExactRate(59.3); // more than a GIF holds
    answers.savePath = place("mine.mp4");
    for (const auto &[width, height] : {std::pair(64, 48), {33, 17}}) {
        SCOPED_TRACE(width);
        chooseSize(QString::number(width), QString::number(height));
        QFile::remove(answers.savePath);
        answers.alerts.clear();
        ui.btnMP4Generate->click();
        ASSERT_EQ(answers.alerts.size(), 1u);
        EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Success"));
        EXPECT_EQ(answers.alerts[0].text, qtTrId("IDD_MP4_SAVED_OK"));
        const int wide = width + width % 2;
        const int high = height + height % 2;
        const QList<QByteArray> said =
            run("ffprobe -v error -count_frames -show_entries "
                "stream=codec_name,width,height,pix_fmt,duration,nb_read_frames -of csv=p=0",
                {answers.savePath})
                .trimmed()
                .split(',');
        ASSERT_EQ(said.size(), 6);
        EXPECT_EQ(said[0], "h264");
        EXPECT_EQ(said[1].toInt(), wide);
        EXPECT_EQ(said[2].toInt(), high);
        EXPECT_EQ(said[3], "yuv420p");
        EXPECT_NEAR(said[4].toDouble(), 9 / 59.3, 0.002);
        EXPECT_EQ(said[5].toInt(), 9);
        const QByteArray pixels =
            run("ffmpeg -v error -i",
                {answers.savePath, QStringLiteral("-f"), QStringLiteral("rawvideo"),
                 QStringLiteral("-pix_fmt"), QStringLiteral("rgb24"), QStringLiteral("-")});
        ASSERT_EQ(pixels.size(), 9 * wide * high * 3);
        for (int frame = 0; frame < 9; ++frame)
            for (const int at : {0, wide * high - 1}) { // the added corner has the colour, too
                const auto *pixel =
                    reinterpret_cast<const uchar *>(pixels.data()) + 3 * (frame * wide * high + at);
                const QColor colour = colourOf(frame);
                EXPECT_NEAR(pixel[0], colour.red(), 8) << frame;
                EXPECT_NEAR(pixel[1], colour.green(), 8) << frame;
                EXPECT_NEAR(pixel[2], colour.blue(), 8) << frame;
            }
        // What a player needs first comes first.
        const QByteArray file = contentOf(answers.savePath);
        EXPECT_LT(file.indexOf("moov"), file.indexOf("mdat"));
    }
}

TEST_F(MP4Export, SaysWhenItsEncoderIsMissing) {
    record(3);
    controller.shell.setSffmpegPath(standIn("echo \"Unknown encoder 'libx264'\" >&2; exit 1"));
    ui.btnMP4Generate->click();
    ASSERT_EQ(answers.alerts.size(), 1u);
    EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
    EXPECT_TRUE(answers.alerts[0].text.contains(qtTrId("IDD_MP4_NO_ENCODER")));
}

} // namespace
