// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/tool_run.h"
#include "shell/window_progress.h"
#include "tests/controller/export_fixture.h"

namespace {

using ToolRunner = ExportTest;

TEST_F(ToolRunner, PassesArgumentsUnchanged) {
    const QString tool = standIn("printf '<%s>' \"$@\"");
    const QStringList arguments{QStringLiteral("a b"), QStringLiteral("$HOME '\"*"), QString(),
                                QStringLiteral("ü")};
    EXPECT_EQ(controller.RunToolReadAllOutput(tool, arguments).text,
              QStringLiteral("<a b><$HOME '\"*><><ü>"));
    EXPECT_EQ(controller.RunToolReadAllOutput(standIn("printf '\\377'"), {}).text, QString());
}

TEST_F(ToolRunner, MovesTheBarByWhatArrivesInOneChunk) {
    // Each line is one chunk: the tool waits until the bar has been looked at.
    const QString tool = standIn("next() { until [ -e \"$0.$1\" ]; do sleep 0.01; done; }\n"
                                 "printf 'frame=1 time=00:00:01.00 x\\r' >&2; next 1\n"
                                 "printf 'time=00:00:02.00 x\\rtime=00:00:0' >&2; next 2\n"
                                 "printf '3.00 split\\r \\377 time=00:00:03.00\\r' >&2; next 3\n"
                                 "printf 'time=00:00:05.00 x\\r' >&2; next 4");
    controller.exporting.setI_Orig_Duration_in_Seconds(3);
    controller.surroundings.progress.show(QStringLiteral("a test"));
    std::vector<double> seen;
    int step = 0;
    QByteArray read;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        // A chunk that moves nothing is known by its bytes.
        if (!controller.windowProgress() || controller.exporting.toolErrors == read)
            return;
        read = controller.exporting.toolErrors;
        seen.push_back(controller.windowProgress()->doubleValue());
        put(tool + u'.' + QString::number(++step), {});
    });
    look.start(5);
    EXPECT_TRUE(controller.RunToolWithProgress(tool, {}).succeeded());
    const auto percent = [](float value) { return static_cast<double>(value); };
    EXPECT_EQ(seen, std::vector({percent(33.333332f), percent(66.666664f), percent(66.666664f),
                                 percent(500.0f / 3.0f)}));
    EXPECT_EQ(controller.Return_Seconds_From_VOB_Duration_Str(QStringLiteral("00:01:05.97")), 65u);
}

TEST_F(ToolRunner, EndsAnyExportWithOneAlertWhateverGoesWrong) {
    record(3);
    answers.savePath = place("never");
    const struct {
        const char *what;
        QString tool;
        QString reason; // the result's name where it is empty
    } faults[] = {
        {"missing", {}, QStringLiteral("missing")},
        {"failing", standIn("echo no memory >&2; exit 3"), QStringLiteral("no memory")},
        {"crashing", standIn("kill -ABRT $$"), QStringLiteral("signal 6")},
        {"silent", standIn("exit 0"), {}},
        {"empty", standIn(": > \"$last\""), {}},
    };
    for (const auto &[button, encoder, result] :
         {std::tuple(ui.btnGIFExport, "ffmpeg", "output.gif"),
          {ui.btnWebPGenerate, "img2webp", "output.webp"},
          {ui.btnMP4Generate, "ffmpeg", "output.mp4"}})
        for (const auto &[what, tool, reason] : faults) {
            SCOPED_TRACE(testing::Message() << encoder << ' ' << what);
            // One of an earlier run must not pass for the result.
            put(exportFile(result), "stale");
            controller.shell.setSffmpegPath(tool);
            controller.shell.setSimg2webpPath(tool);
            answers.alerts.clear();
            button->click();
            ASSERT_EQ(answers.alerts.size(), 1u);
            EXPECT_EQ(answers.alerts[0].title, QStringLiteral("Error"));
            const QString &text = answers.alerts[0].text;
            EXPECT_TRUE(text.contains(QLatin1String(encoder)));
            EXPECT_TRUE(text.contains(reason.isEmpty() ? QString::fromLatin1(result) : reason))
                << text.toStdString();
        }
    EXPECT_TRUE(answers.panels.isEmpty());
}

TEST_F(ToolRunner, IsDeafAfterTheEnd) {
    controller.surroundings.progress.show(QStringLiteral("a test"));
    EXPECT_TRUE(controller.RunToolWithProgress(standIn("exit 0"), {}).succeeded());
    controller.errData("time=00:00:01");
    controller.terminated(0, QProcess::NormalExit);
    EXPECT_EQ(controller.windowProgress(), nullptr);
}

} // namespace
