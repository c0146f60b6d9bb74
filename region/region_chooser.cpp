// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "region/region_chooser.h"

#include "region/controller_squares.h"
#include "region/region_drag.h"
#include "region/region_text.h"
#include "region/window_region_how_it_works.h"
#include "region/window_transparent_region.h"
#include "shell/coordinates.h"
#include "shell/settings.h"
#include "shell/surroundings.h"

#include <QApplication>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace {

constexpr QSizeF startingSize(320.0, 240.0); // points

// What is remembered, by its name in the settings.
constexpr auto typeChoice = "Capture";
constexpr auto monitorChoice = "Monitor";
constexpr auto regionChoice = "Region";
constexpr auto screenOfRegionChoice = "RegionScreen";
constexpr QLatin1String regionWord("region");

/// None where it is gone.
const QScreen *screenNamed(const QString &name) {
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto found = std::ranges::find(screens, name, &QScreen::name);
    return found == screens.end() ? nullptr : *found;
}

} // namespace

void RegionChooser::start() {
    region.setRect_Screen_Region(surroundings_.shell.frame_Screen());
    region.arrayScreenPointSquare.clear();
    region.setB_Show_Select_Region_How_To(settings::readShowSelectRegionHowTo());
}

void RegionChooser::recall() {
    monitor_ = settings::readChoice(monitorChoice);
    const std::optional<region_geometry::Region> last = lastRegion();
    const QScreen *screen = screenNamed(settings::readChoice(screenOfRegionChoice));
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!last || !screen)
        return;
    const QSize size = screen->size();
    const region_geometry::Region fitting =
        region_drag::within(*last, {.width = static_cast<double>(size.width()),
                                    .height = static_cast<double>(size.height())});
    region.setRect_Screen_Region(QRectF(fitting.x, fitting.y, fitting.width, fitting.height));
    region.setScreenOfRegion(coordinates::screenOnDesktop(*screen));
    if (settings::readChoice(typeChoice) != regionWord)
        return;
    if (fitting == *last) {
        region.setI_Type_Screen_Capture(CAPTURE_REGION);
        return;
    }
    offersRegion_ = true;
    Q_EMIT offerChanged();
}

void RegionChooser::takeOfferedRegion() {
    if (!offersRegion_)
        return;
    region.setI_Type_Screen_Capture(CAPTURE_REGION);
    remember();
    withdrawOffer();
}

void RegionChooser::withdrawOffer() {
    if (std::exchange(offersRegion_, false))
        Q_EMIT offerChanged();
}

void RegionChooser::remember() const {
    settings::writeChoice(typeChoice, isRegionRecorded() ? QString(regionWord) : QString());
    settings::writeChoice(monitorChoice, monitor_);
    const QMainWindow *window = surroundings_.shell.window();
    if (!isRegionRecorded() || !window || !window->screen())
        return;
    const QRect chosen = region.rect_Screen_Region().toRect();
    settings::writeChoice(regionChoice, region_text::textOf({chosen.x(), chosen.y(), chosen.width(),
                                                             chosen.height()}));
    settings::writeChoice(screenOfRegionChoice, window->screen()->name());
}

void RegionChooser::OnRecordFullScreen() { recordMonitor({}); }

void RegionChooser::recordMonitor(const QString &name) {
    monitor_ = name;
    region.setI_Type_Screen_Capture(CAPTURE_FULL_SCREEN);
    remember();
    withdrawOffer();
}

const QScreen *RegionChooser::recordedMonitor() const {
    return isRegionRecorded() || monitor_.isEmpty() ? nullptr : screenNamed(monitor_);
}

QString RegionChooser::monitor() const { return recordedMonitor() ? monitor_ : QString(); }

void RegionChooser::OnRecordRegion() {
    // Assistive technology reaches the command past a modal window.
    if (QApplication::activeModalWidget() || !explainRegion(true))
        return;
    choose(surroundings_.shell.window()->screen(), {});
}

void RegionChooser::OnPickWindow() {
    if (!QApplication::activeModalWidget())
        choose(surroundings_.shell.window()->screen(), {}, true);
}

void RegionChooser::chooseOnStill(const QImage &still, QScreen &screen) { choose(&screen, still); }

bool RegionChooser::explainRegion(bool picksWindows) {
    return region.b_Show_Select_Region_How_To() != 1 ||
           Window_Region_How_It_Works(surroundings_.shell.window(), region, picksWindows).exec() ==
               QDialog::Accepted;
}

void RegionChooser::choose(QScreen *screen, const QImage &still, bool picking) {
    const CaptureType typeBefore = region.i_Type_Screen_Capture();
    const QRectF rectangleBefore = region.rect_Screen_Region();
    const std::optional<coordinates::Screen> screenBefore = region.screenOfRegion();
    region.setI_Type_Screen_Capture(CAPTURE_REGION);
    surroundings_.updateScreen();
    region.setSize_Region(startingSize);
    int code = Window_Transparent_Region::cancelled;
    if (screen) {
        Window_Transparent_Region overlay(*screen, *this, still);
        region.setPFullScreen(&overlay);
        code = overlay.runModal(picking);
        region.setPFullScreen(nullptr);
    }
    if (code == Window_Transparent_Region::accepted) {
        remember();
        withdrawOffer();
        return;
    }
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

std::optional<region_geometry::Region> RegionChooser::lastRegion() {
    return region_text::regionOf(settings::readChoice(regionChoice));
}

std::vector<TitledWindow> RegionChooser::windows() const {
    return windows_ ? windows_() : std::vector<TitledWindow>();
}

region_geometry::Region RegionChooser::regionFor(const QRect &inFrames) const {
    const coordinates::Points points = region_place::regionOf(inFrames, placeInputs());
    using region_geometry::truncated;
    return {truncated(points.x), truncated(points.y), truncated(points.width),
            truncated(points.height)};
}

const region_place::Place &RegionChooser::place() const {
    const region_place::Inputs inputs = placeInputs();
    if (placedFor_ != inputs) {
        place_ = region_place::placeOf(inputs);
        placedFor_ = inputs;
    }
    return place_;
}

region_place::Inputs RegionChooser::placeInputs() const {
    const QRectF chosen = region.rect_Screen_Region();
    const QMainWindow *window = surroundings_.shell.window();
    const QScreen *screen = window ? window->screen() : nullptr;
    std::optional<coordinates::Screen> screenOfWindow = screenOfGrab_;
    if (!screenOfWindow && screen)
        screenOfWindow = coordinates::screenOnDesktop(*screen);
    coordinates::Points part{chosen.x(), chosen.y(), chosen.width(), chosen.height()};
    std::optional<coordinates::Screen> screenOfPart = region.screenOfRegion();
    if (const QScreen *whole = recordedMonitor()) {
        part = {0, 0, static_cast<double>(whole->size().width()),
                static_cast<double>(whole->size().height())};
        screenOfPart = coordinates::screenOnDesktop(*whole);
    }
    return {.regionIsRecorded = isPartRecorded(),
            .region = part,
            .screenOfRegion = screenOfPart,
            .screenOfWindow = screenOfWindow,
            .grab = grab_};
}
