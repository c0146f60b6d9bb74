// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "script/command_line.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace command_line;

namespace {

Command parsed(const QString &line) {
    return read((QStringLiteral("tovarel ") + line).split(u' ', Qt::SkipEmptyParts),
                QStringLiteral("1"));
}

Command parsed(const char *line) { return parsed(QString::fromLatin1(line)); }

TEST(CommandLine, asksForOneThing) {
    EXPECT_TRUE(std::holds_alternative<ShowWindow>(parsed("")));
    EXPECT_TRUE(std::holds_alternative<ShowWindow>(
        parsed("-platform xcb -session 10_20 --style=Fusion -reverse")))
        << "the toolkit's own";
    const auto tell = parsed("--toggle -name x");
    ASSERT_TRUE(std::holds_alternative<Tell>(tell));
    EXPECT_EQ(std::get<Tell>(tell).wish, QStringLiteral("toggle"));
    for (const char *line : {"--help", "record --help", "--version", "record -v --seconds x"})
        EXPECT_TRUE(std::holds_alternative<Say>(parsed(line))) << line;
}

TEST(CommandLine, takesWhatIsToBeRecorded) {
    const auto whole = parsed("record --region 640x480+100+80 --seconds 2.5 --rate 30 --delay 3 "
                              "--quality small --force -o /tmp/A.WebP");
    ASSERT_TRUE(std::holds_alternative<Recording>(whole));
    const auto &recording = std::get<Recording>(whole);
    EXPECT_EQ(recording.region, QRect(100, 80, 640, 480));
    EXPECT_EQ(recording.seconds, 2.5);
    EXPECT_EQ(recording.rate, 30u);
    EXPECT_EQ(recording.delay, 3.0);
    EXPECT_EQ(recording.preset, GifPreset::Small);
    EXPECT_EQ(recording.format, Format::WebP);
    EXPECT_TRUE(recording.force);
    const struct {
        const char *line;
        std::optional<int> monitor;
    } screens[] = {{"record --screen --seconds 1", std::nullopt},
                   {"record --screen 2 --seconds 1", 2},
                   {"record --seconds 1 --screen", std::nullopt},
                   {"record --screen=3 --seconds=1", 3}};
    for (const auto &each : screens) {
        const auto command = parsed(each.line);
        ASSERT_TRUE(std::holds_alternative<Recording>(command)) << each.line;
        EXPECT_EQ(std::get<Recording>(command).monitor, each.monitor) << each.line;
    }
}

TEST(CommandLine, refusesWhatCannotBeMeant) {
    const QTemporaryDir folder;
    for (const char *line : {"--toogle",
                             "recrd",
                             "--toggle --stop",
                             "record",
                             "record --screen",
                             "record --seconds 1",
                             "record --screen --region 1x1+0+0 --seconds 1",
                             "record --region 0x480+0+0 --seconds 1",
                             "record --region 640x480 --seconds 1",
                             "record --region 640x480+-1+0 --seconds 1",
                             "record --screen --seconds nan",
                             "record --screen --seconds 1,5",
                             "record --screen --seconds 4000",
                             "record --screen --seconds -1",
                             "record --screen --seconds 0.1 --rate 10",
                             "record --screen --seconds 1 --rate 61",
                             "record --screen --seconds 1 --rate 7.5",
                             "record --screen --seconds 1 --delay -1",
                             "record --screen --seconds 1 --quality Best",
                             "record --screen --seconds 1 more",
                             "record --screen --seconds 1 -o a.png",
                             "record --screen --seconds 1 -o /nonexistent/a.gif",
                             "record --seconds 1 --window"})
        EXPECT_TRUE(std::holds_alternative<Mistake>(parsed(line))) << line;
    const QString path = folder.filePath(QStringLiteral("there.gif"));
    const QString line = QStringLiteral("record --screen --seconds 1 -o ") + path;
    EXPECT_TRUE(std::holds_alternative<Recording>(parsed(line)));
    ASSERT_TRUE(QFile::link(QStringLiteral("/nonexistent"), path));
    EXPECT_TRUE(std::holds_alternative<Mistake>(parsed(line))) << "a broken link is something too";
    EXPECT_TRUE(std::holds_alternative<Recording>(parsed(line + QStringLiteral(" --force"))));
}

} // namespace
