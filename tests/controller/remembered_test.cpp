// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/window_place.h"
#include "shell/settings.h"
#include "tests/controller/controller_fixture.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

/// What one start leaves to the next; each controller is a start.
class Remembered : public testing::Test {
protected:
    Remembered() {
        for (const char *name : {"Rate", "Capture", "Region", "RegionScreen", "Monitor", "Window"})
            settings::writeChoice(name, {});
    }
    ~Remembered() override { forget(); }
    static void forget() {
        for (const char *name : {"Rate", "Capture", "Region", "Monitor", "Window"})
            settings::writeChoice(name, {});
    }
};

TEST_F(Remembered, rateAndRegionAndPlaceAreThoseOfTheLastStart) {
    const QRectF region(40, 60, 200, 100);
    {
        TestController first;
        EXPECT_EQ(first.delegate->recording.u_FPS(), defaultFramesPerSecond);
        EXPECT_FALSE(first.delegate->regionChooser.isRegionRecorded());
        first.delegate->recorder.setRate(24);
        settings::writeChoice("Region", QStringLiteral("40 60 200 100"));
        settings::writeChoice("Capture", QStringLiteral("region"));
        first.window()->resize(600, 450);
        first.window()->move(20, 30);
        window_place::remember(*first.window());
    }
    {
        TestController second;
        EXPECT_EQ(second.delegate->recording.u_FPS(), 24u);
        EXPECT_TRUE(second.delegate->regionChooser.isRegionRecorded());
        EXPECT_EQ(second.delegate->region.rect_Screen_Region(), region);
        EXPECT_FALSE(second.ui().btnMoveRegion->isVisible());
        EXPECT_EQ(second.window()->size(), QSize(600, 450));
        EXPECT_EQ(second.window()->frameGeometry().topLeft(), QPoint(20, 30));
        second.delegate->OnRecordFullScreen(nullptr);
    }
    TestController third;
    EXPECT_FALSE(third.delegate->regionChooser.isRegionRecorded());
    EXPECT_EQ(third.delegate->region.rect_Screen_Region(), region) << "the overlay begins there";
}

TEST_F(Remembered, aRegionIsOfferedToBeMovedIntoTheScreenAndNonsenseIsNone) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    settings::writeChoice("Capture", QStringLiteral("region"));
    settings::writeChoice("Region", QStringLiteral("5000 -20 320 240"));
    settings::writeChoice("Window", QStringLiteral("90000 90000 99999 99999"));
    {
        TestController moved;
        EXPECT_FALSE(moved.delegate->regionChooser.isRegionRecorded());
        ASSERT_TRUE(moved.ui().btnMoveRegion->isVisible());
        moved.ui().btnMoveRegion->click();
        EXPECT_FALSE(moved.ui().btnMoveRegion->isVisible());
        EXPECT_TRUE(moved.delegate->regionChooser.isRegionRecorded());
        EXPECT_EQ(moved.delegate->region.rect_Screen_Region(),
                  QRectF(screen.width() - 320, 0, 320, 240));
        EXPECT_TRUE(QRect(QPoint(), screen).contains(QRect(QPoint(), moved.window()->size())));
    }
    for (const char *nonsense : {"", "1 2 3", "0 0 0 240", "a b c d", "1 2 3 99999999999"}) {
        settings::writeChoice("Region", QString::fromLatin1(nonsense));
        settings::writeChoice("Rate", QStringLiteral("61"));
        TestController start;
        EXPECT_FALSE(start.delegate->regionChooser.isRegionRecorded()) << nonsense;
        EXPECT_EQ(start.delegate->recording.u_FPS(), defaultFramesPerSecond);
    }
}

TEST_F(Remembered, allMonitorsAreRecordedWhereTheOneIsGone) {
    settings::writeChoice("Monitor", QStringLiteral("gone"));
    TestController next;
    EXPECT_TRUE(next.delegate->regionChooser.monitor().isEmpty());
    EXPECT_FALSE(next.delegate->regionChooser.isPartRecorded());
}

} // namespace
