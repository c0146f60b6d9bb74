// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/aspect_ratio.h"
#include "export/loops_text.h"
#include "export/progress_parser.h"
#include "export/size_text.h"
#include "export/tool_failure.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Limits = std::numeric_limits<std::uint64_t>;

TEST(ProgressParser, TakesTheLastCompleteStampOfAChunk) {
    const struct {
        const char *chunk;
        std::optional<double> seconds;
    } cases[] = {
        {"frame=   12 fps=0.0 size=0kB time=00:00:01.20 bitrate=1\r", 1.2},
        {"time=00:00:01.00 x\rtime=00:00:02.00 x\r", 2},
        {"time=00:01:05.97", 65.97},
        {"time=00:01:05.9", 65},  // cut off
        {"time=00:01:05,97", 65}, // no fraction
        {"time=01:00:00", 3600},
        {"time=00:00:0", std::nullopt},
        {"time=00:00:03 time=00:00:0", 3},
        {"", std::nullopt},
        {"no stamp", std::nullopt},
        {"TIME=00:00:04", std::nullopt},            // the first one in lower case only
        {"time=00:00:03 TIME=00:00:04", 4},         // the others in any case
        {"time=N/A bitrate", 0},                    // no digits
        {"time=00-00*07", 7},                       // separators are not looked at
        {"time=time=00:00:09.00", 0},               // the next search starts behind the stamp
        {"time=00:00:05 time=00 time=00:00:08", 0}, // a short one takes what follows it
    };
    for (const auto &[chunk, seconds] : cases)
        EXPECT_EQ(secondsInChunk(chunk), seconds) << chunk;
}

TEST(ProgressParser, TakesNothingFromBytesThatAreNotUtf8) {
    EXPECT_EQ(secondsInChunk("time=00:00:01 \xff"), std::nullopt);
    EXPECT_EQ(secondsInChunk("time=00:00:01 \xc3"), std::nullopt) << "a sequence cut off";
    EXPECT_EQ(secondsInChunk("\xa4 time=00:00:01"), std::nullopt) << "the rest of one";
    EXPECT_EQ(secondsInChunk("\xed\xa0\x80 time=00:00:01"), std::nullopt) << "half a pair";
    EXPECT_EQ(secondsInChunk("Wärme \xf0\x9f\x8e\xac time=00:00:01"), 1u);
}

TEST(ProgressParser, ReadsNegativeFieldsInUnsignedArithmetic) {
    EXPECT_EQ(secondsFromStamp(u"00:00:-1"), Limits::max());
    EXPECT_EQ(secondsFromStamp(u" 1: 2:+3"), 3723u);
}

TEST(ProgressParser, TakesTheLastFrameThatTheWebPEncoderHasAdded) {
    const struct {
        const char *chunk;
        std::optional<double> seconds;
    } cases[] = {
        {"Added frame #  0 at time    0 (file: a.png)\n", 0.0},
        {"Added frame #  1 at time 1200 (file: a.png)\nAdded frame #  2 at time 1300 (f)\n", 1.3},
        {"Added frame #  1 at time 1200 (file: a.png)\nAdded frame #  2 at time 13", 1.2},
        {"Added frame #  2 at time 13", std::nullopt},
        {"File : a.png\n", std::nullopt},
        {"\xff at time 1200 \n", std::nullopt},
    };
    for (const auto &[chunk, seconds] : cases)
        EXPECT_EQ(secondsOfAddedFrame(chunk), seconds) << chunk;
}

TEST(AspectRatio, RoundsTheDerivedSideUp) {
    using namespace aspect_ratio;
    EXPECT_EQ(heightForWidth(100.0f, ratio(2880, 1800)), 63);
    EXPECT_EQ(heightForWidth(-100.0f, ratio(2880, 1800)), -62);
    EXPECT_EQ(cut(320.7f), 320);
    EXPECT_EQ(cut(-0.9f), 0);
    EXPECT_EQ(cut(std::numeric_limits<float>::max()), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(cut(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(SizeText, SaysWhatTheExportOrTheEncoderWillRefuse) {
    using Problem = SizeTextProblem;
    const struct {
        const char16_t *text;
        Problem problem;
    } cases[] = {{u"320", Problem::None},       {u" +0320", Problem::None},
                 {u"65535", Problem::None},     {u"65536", Problem::TooLarge},
                 {u"", Problem::Zero},          {u"abc", Problem::Zero},
                 {u"0", Problem::Zero},         {u"-100", Problem::Negative},
                 {u"320px", Problem::NotPlain}, {u"320.5", Problem::NotPlain},
                 {u"320 ", Problem::NotPlain},  {u"320x240", Problem::NotPlain}};
    for (const auto &[text, problem] : cases)
        EXPECT_EQ(sizeTextProblem(text), problem) << QString::fromUtf16(text).toStdString();
}

TEST(LoopsText, NamesWhatTheEncoderRefusesAndWhatIsNoNumber) {
    using Problem = LoopsTextProblem;
    const std::pair<const char16_t *, Problem> cases[] = {
        {u"", Problem::None},          {u"0", Problem::None},
        {u" +00", Problem::None},      {u"3 times", Problem::None},
        {u"-0", Problem::None},        {u"65535", Problem::None},
        {u"65536", Problem::TooLarge}, {u"-1", Problem::Negative},
        {u"abc", Problem::NotNumber},  {u"times 3", Problem::NotNumber},
        {u"-", Problem::NotNumber}};
    for (const auto &[text, problem] : cases)
        EXPECT_EQ(loopsTextProblem(text), problem) << QString::fromUtf16(text).toStdString();
}

TEST(LoopsText, BeginsAGifAgainOnceLessThanItIsToBePlayed) {
    EXPECT_EQ(repeatsOf(u"3"), 2);
    EXPECT_EQ(repeatsOf(u" 1 "), std::nullopt);
    EXPECT_EQ(repeatsOf(u"forever"), 0);
    EXPECT_EQ(repeatsOf(u"70000"), 65534);
}

TEST(ToolFailure, ShowsTheLastLinesThatSaySomething) {
    EXPECT_EQ(lastMeaningfulLines("banner\none\ntwo\nthree\r\nInvalid size '32px'\nError\x01here\n"
                                  "frame= 1 time=00:00:01 x\rframe= 2 time=00:00:02 x\r\n \n"
                                  "Conversion failed!\n")
                  .toStdString(),
              "one\ntwo\nthree\nInvalid size '32px'\nError here\nConversion failed!");
    EXPECT_EQ(lastMeaningfulLines("").size(), 0);
    EXPECT_EQ(lastMeaningfulLines(QByteArray(5000, 'a')).size(), 201);
    EXPECT_TRUE(lastMeaningfulLines("bad \xff byte").startsWith(QStringLiteral("bad ")));
}

} // namespace
