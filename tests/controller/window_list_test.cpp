// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/window_list.h"
#include "tests/controller/controller_fixture.h"

#include <algorithm>

namespace {

WindowDescription windowOf(std::uint32_t number, const std::optional<QString> &owner) {
    return {.number = number,
            .sharingState = 1,
            .ownerName = owner,
            .ownerPid = 512,
            .bounds = QRectF(10.4, 20.6, 300.7, 200),
            .layer = 0};
}

QString text(const WindowEntry &entry, const QString &key) { return entry[key].toString(); }

} // namespace

using WindowList = ControllerFixture;

TEST_F(WindowList, describesEachWindowByTheSixKeys) {
    server->windows = {windowOf(7, QStringLiteral("Preview")), windowOf(0xfffffff0u, std::nullopt)};
    delegate->updateWindowList();
    ASSERT_EQ(delegate->capture.arrayController.size(), 2u);
    const WindowEntry &first = delegate->capture.arrayController[0];
    EXPECT_EQ(first.size(), 6);
    EXPECT_EQ(text(first, kAppNameKey), QStringLiteral("Preview (512)"));
    EXPECT_EQ(text(first, kWindowOriginKey), QStringLiteral("10/21"));
    EXPECT_EQ(text(first, kWindowSizeKey), QStringLiteral("301*200"));
    const WindowEntry &second = delegate->capture.arrayController[1];
    EXPECT_EQ(text(second, kAppNameKey), QStringLiteral("((unknown)) (512)"));
    EXPECT_EQ(second[kWindowIDKey].toUInt(), 0xfffffff0u);
    EXPECT_EQ(second[kWindowOrderKey].toInt(), 1);
}

TEST_F(WindowList, passesOverWindowsThatMayNotBeSharedWithoutAGapInTheOrder) {
    WindowDescription secret = windowOf(2, QStringLiteral("Vault"));
    secret.sharingState = 0;
    server->windows = {windowOf(1, QStringLiteral("One")), secret,
                       windowOf(3, QStringLiteral("Two"))};
    delegate->updateWindowList();
    ASSERT_EQ(delegate->capture.arrayController.size(), 2u);
    EXPECT_EQ(delegate->capture.arrayController[1][kWindowIDKey].toUInt(), 3u);
    EXPECT_EQ(delegate->capture.arrayController[1][kWindowOrderKey].toInt(), 1);
}

TEST_F(WindowList, grabsAllWindowsButOursFrontToBack) {
    server->windows = {windowOf(5, QStringLiteral("Editor")),
                       windowOf(4, QStringLiteral("Tovarel")), windowOf(9, std::nullopt)};
    delegate->TimerRefreshVideoRoutine();
    EXPECT_EQ(server->asked, (std::vector<std::uint32_t>{5, 9}));
    EXPECT_EQ(delegate->capture.arrayWindowsMinusHarrowlens.size(), 2u);

    // The stack decides, not the order of the selection.
    std::vector<WindowEntry> selection = delegate->capture.arrayController;
    std::ranges::reverse(selection);
    EXPECT_EQ(delegate->newWindowListFromSelection(selection),
              (std::vector<std::uint32_t>{5, 4, 9}));
}

TEST_F(WindowList, halvesTheGrabOfADoubleDensityScreenAndKeepsTheLastOneWhenThereIsNone) {
    delegate->region.setI_Type_Screen_Capture(CAPTURE_REGION);
    delegate->region.setRect_Screen_Region({0, 0, 32, 24});
    delegate->region.setScreenOfRegion(coordinates::Screen{.height = 24, .ratio = 2});
    delegate->TimerRefreshVideoRoutine();
    const Image half = delegate->capture.imgScreenCapture();
    EXPECT_EQ(half.size(), QSize(32, 24));
    EXPECT_FALSE(half.hasAlpha());
    EXPECT_EQ(half.toQImage().pixel(31, 23), qRgb(10, 20, 30));
    // Unchanged desktop, unchanged picture.
    delegate->TimerRefreshVideoRoutine();
    EXPECT_TRUE(delegate->capture.imgScreenCapture().sameAs(half));
    server->picture.reset();
    delegate->TimerRefreshVideoRoutine();
    EXPECT_TRUE(delegate->capture.imgScreenCapture().sameAs(half));

    delegate->region.setScreenOfRegion(coordinates::Screen{.height = 48, .ratio = 1});
    server->picture = plainImage({64, 48}, qRgb(1, 2, 3));
    delegate->TimerRefreshVideoRoutine();
    EXPECT_TRUE(delegate->capture.imgScreenCapture().sameAs(*server->picture));
}
