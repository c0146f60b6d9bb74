// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_server.h"
#include "region/region_fields.h"
#include "region/region_geometry.h"
#include "region/region_place.h"

#include <QImage>
#include <QObject>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QScreen;
class Surroundings;

/// The desk of the region: what is recorded, the whole screen or a part of it, and where that part
/// is. It knows nothing of grabs but their size, and nothing of the main window's controls.
class RegionChooser : public QObject {
    Q_OBJECT

public:
    /// `surroundings` are borrowed and outlive it.
    explicit RegionChooser(Surroundings &surroundings) : surroundings_(surroundings) {}

    RegionFields region;

    /// The values of the start: the whole screen, the stored how-to setting.
    void start();
    /// Takes the choice of the last start: screen, monitor or region.
    void recall();

    /// All of the desktop.
    void OnRecordFullScreen();
    /// One monitor, by the name that the window system has for it; all of them when it is empty.
    void recordMonitor(const QString &name);
    /// The one that is recorded when no region is; empty for all of them. One that is gone counts
    /// as all.
    QString monitor() const;
    /// Explains, unless the user has had enough of it, and lets a region be chosen on the main
    /// window's screen; when that is cancelled, what is recorded stays as it was. Returns after it.
    void OnRecordRegion();

    /// The same, without a word, for a window that the next click picks.
    void OnPickWindow();

    /// Explains it, unless the user has had enough of that; false when the user thinks better of
    /// it. `picksWindows` says whether a window can be picked for it.
    bool explainRegion(bool picksWindows);
    /// Lets a region of `still` be chosen, a picture of all that can be recorded, which `screen`
    /// shows; for where an overlay cannot show what is beneath it. Otherwise as above.
    void chooseOnStill(const QImage &still, QScreen &screen);

    /// Works out the region from the overlay's squares and stores it.
    void storeRegion();

    /// Ends and closes the open overlay and its modal loop because the screen has changed;
    /// `pFullScreen` is null afterwards, and the whole screen is recorded.
    void endRegionOverlay();
    /// The screen configuration changed: an open overlay whose screen is another now ends, and the
    /// whole screen is recorded.
    void screenParametersDidChange();

    /// The windows that can be picked, front to back, see `WindowServer::titledWindows`; without it
    /// there are none.
    using Windows = std::function<std::vector<TitledWindow>()>;
    void setWindows(Windows windows) { windows_ = std::move(windows); }
    std::vector<TitledWindow> windows() const;
    /// The region that is there in the grabs to come (units of the grab, upper left origin), in
    /// whole points of the region's screen.
    region_geometry::Region regionFor(const QRect &inFrames) const;
    /// The region that was accepted last, at this start or an earlier one.
    static std::optional<region_geometry::Region> lastRegion();

    bool isRegionRecorded() const { return region.i_Type_Screen_Capture() == CAPTURE_REGION; }
    /// Whether a part of the desktop is recorded: the region, or a monitor of several.
    bool isPartRecorded() const { return isRegionRecorded() || recordedMonitor(); }
    /// Whether the region of the last time does not fit the screen any more: it can be had, moved
    /// inside, until something else is chosen. The whole screen is recorded until then.
    bool offersRegion() const { return offersRegion_; }
    void takeOfferedRegion();

    /// The latest grab, in which the region has its place from now on.
    void setGrab(const region_place::Grab &grab) { grab_ = grab; }
    /// The screen that the grab shows, if it shows one and nothing else.
    void setScreenOfGrab(const coordinates::Screen &screen) { screenOfGrab_ = screen; }
    /// Worked out once for as long as nothing changes on which it depends. Counted from the screen
    /// on which the region was chosen, wherever the main window has gone since.
    const region_place::Place &place() const;

    Surroundings &surroundings() const { return surroundings_; }

Q_SIGNALS:
    /// A region is offered now, or no longer.
    void offerChanged();

private:
    const QScreen *recordedMonitor() const;
    void remember() const;
    void choose(QScreen *screen, const QImage &still, bool picking = false);
    void withdrawOffer();

    Surroundings &surroundings_;
    region_place::Inputs placeInputs() const;

    Windows windows_;
    QString monitor_;
    bool offersRegion_ = false;
    region_place::Grab grab_;
    std::optional<coordinates::Screen> screenOfGrab_;
    mutable std::optional<region_place::Inputs> placedFor_;
    mutable region_place::Place place_;
};
