// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "export/fit_limit.h"
#include "export/fit_search.h"
#include "export/size_forecast.h"

#include <cmath>
#include <functional>

namespace {

/// How large a recording's file is for what is given up.
using Sizes = std::function<double(const FitChoice &)>;

struct Found {
    std::optional<double> depth;
    double bytes = 0;
    double effort = 0; // of trials; 1 is making the file once as it was asked for
};

Found run(const FitLadder &ladder, std::uint64_t limit, const Sizes &sizes) {
    FitSearch search(ladder, limit);
    Found found;
    while (const std::optional<double> depth = search.next()) {
        const FitChoice choice = ladder.at(*depth);
        const double bytes = sizes(choice);
        const double work = choice.rate / ladder.at(0).rate * choice.scale * choice.scale;
        // One that exceeds the limit is given up there.
        found.effort += work * std::min(1.0, static_cast<double>(limit) / bytes);
        search.tried(*depth, static_cast<std::uint64_t>(bytes));
        if (search.found() == depth)
            found.bytes = bytes;
    }
    found.depth = search.found();
    return found;
}

} // namespace

TEST(FitSearch, GivesUpColoursThenRateThenSizeAndNoMoreThanItMust) {
    const FitLadder ladder({.tolerance = 2, .rate = 15}, true, true);
    EXPECT_EQ(ladder.at(0), (FitChoice{2, 15, 1}));
    EXPECT_EQ(ladder.at(1), (FitChoice{5, 15, 1}));
    EXPECT_EQ(ladder.at(2).rate, FitLadder::lowestRate);
    EXPECT_EQ(ladder.at(3).scale, FitLadder::smallestScale);
    const FitLadder chosen({.tolerance = 5, .rate = 6}, true, false);
    EXPECT_EQ(chosen.end(), 0) << "nothing can be given up";

    // Sizes that follow what is given up otherwise than the search expects, steeper and flatter.
    for (const double tolerance : {0.04, 0.08, 0.14})
        for (const double rate : {0.3, 1.0})
            for (const double pixels : {0.5, 1.2}) {
                const Sizes sizes = [&](const FitChoice &choice) {
                    return 8e6 * std::exp(-tolerance * (choice.tolerance - 2)) *
                           std::pow(choice.rate / 15, rate) * std::pow(choice.scale, 2 * pixels);
                };
                const double smallest = sizes(ladder.at(ladder.end()));
                for (const double limit : {9e6, 7e6, 5e6, 3e6, 2e6, 1.1 * smallest}) {
                    SCOPED_TRACE(testing::Message()
                                 << limit << ' ' << tolerance << ' ' << rate << ' ' << pixels);
                    const Found found = run(ladder, static_cast<std::uint64_t>(limit), sizes);
                    ASSERT_EQ(found.depth.has_value(), smallest <= limit);
                    if (!found.depth)
                        continue;
                    EXPECT_LE(found.bytes, limit);
                    EXPECT_EQ(*found.depth == 0, limit >= 8e6);
                    if (*found.depth > 0) {
                        EXPECT_GE(found.bytes, 0.85 * limit);
                    }
                    EXPECT_LE(found.effort, 3.0);
                }
                EXPECT_FALSE(run(ladder, static_cast<std::uint64_t>(0.9 * smallest), sizes).depth);
            }
}

TEST(FitLimit, IsANumberOfMegabytesOrNone) {
    EXPECT_EQ(fitLimitOf(u"5 MB").bytes, 5'000'000);
    EXPECT_EQ(fitLimitOf(u"5\u00a0Mo").bytes, 5'000'000);
    EXPECT_EQ(fitLimitOf(u" 2.5mb ").bytes, 2'500'000);
    EXPECT_EQ(fitLimitOf(u"2.3").bytes, 2'300'000);
    EXPECT_EQ(fitLimitOf(u"200 kB").bytes, 200'000);
    EXPECT_EQ(fitLimitOf(u"0.5ko").bytes, 500);
    EXPECT_FALSE(fitLimitOf(u"").bytes || fitLimitOf(u"").isWrong);
    for (const char16_t *text : {u"0", u"-1", u"abc", u"5 GB", u"inf", u"nan", u"0.0000001"})
        EXPECT_TRUE(fitLimitOf(text).isWrong) << QString::fromUtf16(text).toStdString();
}

TEST(SizeForecast, TakesWhatIsToComeByWhatChangedAsMuch) {
    SizeForecast forecast({9e9, 100, 100, 100'000, 0, 100'000});
    EXPECT_EQ(forecast.bytes(), 0);
    EXPECT_EQ(forecast.weightiestFrame(), 5);
    forecast.add(1, 1000);
    EXPECT_EQ(forecast.bytes(), 1000);
    forecast.addSample(5, 50'000); // half a byte for each pixel
    EXPECT_EQ(forecast.bytes(), 1000 + 100 + 100'000);
    forecast.add(2, 1200); // two bytes for each pixel of a small change
    EXPECT_EQ(forecast.bytes(), 1400 + 100'000);
    forecast.add(4, 71'400);
    EXPECT_NEAR(double(forecast.bytes()), 71'400 + 60'000, 200);
    forecast.add(6, 140'000);
    EXPECT_EQ(forecast.bytes(), 140'000);
    EXPECT_FALSE(SizeForecast({5, 0, 0}).weightiestFrame());
}
