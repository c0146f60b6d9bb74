// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_chooser.h"

#include "region/controller_squares.h"
#include "region/window_region_how_it_works.h"
#include "region/window_transparent_region.h"
#include "shell/coordinates.h"
#include "shell/settings.h"
#include "shell/surroundings.h"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>

namespace {

constexpr QSizeF startingSize(320.0, 240.0); // points

} // namespace

void RegionChooser::start() {
    region.setRect_Screen_Region(surroundings_.shell.frame_Screen());
    region.arrayScreenPointSquare.clear();
    region.setB_Show_Select_Region_How_To(settings::readShowSelectRegionHowTo());
}

void RegionChooser::OnRecordFullScreen() { region.setI_Type_Screen_Capture(CAPTURE_FULL_SCREEN); }

void RegionChooser::OnRecordRegion() {
    // Assistive technology reaches the command past a modal window.
    if (QApplication::activeModalWidget())
        return;
    if (region.b_Show_Select_Region_How_To() == 1 &&
        Window_Region_How_It_Works(surroundings_.shell.window(), region).exec() !=
            QDialog::Accepted)
        return;
    const CaptureType typeBefore = region.i_Type_Screen_Capture();
    const QRectF rectangleBefore = region.rect_Screen_Region();
    const std::optional<coordinates::Screen> screenBefore = region.screenOfRegion();
    region.setI_Type_Screen_Capture(CAPTURE_REGION);
    surroundings_.updateScreen();
    region.setSize_Region(startingSize);
    int code = Window_Transparent_Region::cancelled;
    if (QScreen *screen = surroundings_.shell.window()->screen()) {
        Window_Transparent_Region overlay(*screen, *this);
        region.setPFullScreen(&overlay);
        code = overlay.runModal();
        region.setPFullScreen(nullptr);
    }
    if (code == Window_Transparent_Region::accepted)
        return;
    // A region may be anywhere on a screen that has changed.
    region.setI_Type_Screen_Capture(
        code == Window_Transparent_Region::screenChanged ? CAPTURE_FULL_SCREEN : typeBefore);
    region.setRect_Screen_Region(rectangleBefore);
    region.setScreenOfRegion(screenBefore);
}

void RegionChooser::endRegionOverlay() {
    if (!region.pFullScreen())
        return;
    region.pFullScreen()->stopModalWithCode(Window_Transparent_Region::screenChanged);
    region.pFullScreen()->hide();
    region.setPFullScreen(nullptr);
}

void RegionChooser::screenParametersDidChange() {
    if (!region.pFullScreen())
        return;
    const QRectF frame = coordinates::lowerLeftFrame(surroundings_.shell.window()->screen());
    const QRectF known = surroundings_.shell.frame_Screen();
    // QRectF's own comparison is fuzzy; here every difference counts.
    const bool same = frame.x() == known.x() && frame.y() == known.y() &&
                      frame.width() == known.width() && frame.height() == known.height();
    if (same)
        return;
    endRegionOverlay();
    region.setI_Type_Screen_Capture(CAPTURE_FULL_SCREEN);
}

void RegionChooser::storeRegion() {
    const region_geometry::Region chosen =
        region_geometry::boundingRegion(controller_squares::read(region));
    region.setRect_Screen_Region(QRectF(chosen.x, chosen.y, chosen.width, chosen.height));
}

const region_place::Place &RegionChooser::place() const {
    const QRectF chosen = region.rect_Screen_Region();
    const QMainWindow *window = surroundings_.shell.window();
    const QScreen *screen = window ? window->screen() : nullptr;
    const region_place::Inputs inputs{
        .regionIsRecorded = isRegionRecorded(),
        .region = {chosen.x(), chosen.y(), chosen.width(), chosen.height()},
        .screenOfRegion = region.screenOfRegion(),
        .screenOfWindow =
            screen ? std::optional(coordinates::screenOnDesktop(*screen)) : std::nullopt,
        .grab = grab_};
    if (placedFor_ != inputs) {
        place_ = region_place::placeOf(inputs);
        placedFor_ = inputs;
    }
    return place_;
}
