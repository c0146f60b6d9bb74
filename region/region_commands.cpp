// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "region/window_region_how_it_works.h"
#include "region/window_transparent_region.h"
#include "shell/screen_watcher.h"

#include <QApplication>
#include <QMainWindow>

namespace {

constexpr QSizeF startingSize(320.0, 240.0); // points

} // namespace

void AppDelegate::OnRecordFullScreen(QObject *) {
    region.setI_Type_Screen_Capture(CAPTURE_FULL_SCREEN);
}

void AppDelegate::OnRecordRegion(QObject *) {
    // Assistive technology reaches the command past a modal window.
    if (QApplication::activeModalWidget())
        return;
    if (region.b_Show_Select_Region_How_To() == 1 &&
        Window_Region_How_It_Works(shell.window()).exec() != QDialog::Accepted)
        return;
    const std::int64_t typeBefore = region.i_Type_Screen_Capture();
    const QRectF rectangleBefore = region.rect_Screen_Region();
    const std::optional<grab_units::Screen> screenBefore = region.screenOfRegion();
    region.setI_Type_Screen_Capture(CAPTURE_REGION);
    surroundings.updateScreen();
    region.setSize_Region(startingSize);
    int code = Window_Transparent_Region::cancelled;
    if (QScreen *screen = shell.window()->screen()) {
        Window_Transparent_Region overlay(*screen);
        region.setPFullScreen(&overlay);
        code = overlay.runModal();
        region.setPFullScreen(nullptr);
    }
    if (code == Window_Transparent_Region::accepted)
        return;
    // A region may lie anywhere on a screen that has changed.
    region.setI_Type_Screen_Capture(
        code == Window_Transparent_Region::screenChanged ? CAPTURE_FULL_SCREEN : typeBefore);
    region.setRect_Screen_Region(rectangleBefore);
    region.setScreenOfRegion(screenBefore);
}

void AppDelegate::endRegionOverlay() {
    if (!region.pFullScreen())
        return;
    region.pFullScreen()->stopModalWithCode(Window_Transparent_Region::screenChanged);
    region.pFullScreen()->hide();
    region.setPFullScreen(nullptr);
}

void AppDelegate::screenParametersDidChange() {
    if (!region.pFullScreen())
        return;
    const QRectF frame = lowerLeftFrame(shell.window()->screen());
    const QRectF known = shell.frame_Screen();
    // QRectF's own comparison is fuzzy; here every difference counts.
    const bool same = frame.x() == known.x() && frame.y() == known.y() &&
                      frame.width() == known.width() && frame.height() == known.height();
    if (same)
        return;
    endRegionOverlay();
    region.setI_Type_Screen_Capture(CAPTURE_FULL_SCREEN);
}
