// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "region/region_fields.h"
#include "region/region_place.h"

#include <QObject>
#include <QRect>

#include <optional>

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

    void OnRecordFullScreen();
    /// Explains, unless the user has had enough of it, and lets a region be chosen on the main
    /// window's screen; when that is cancelled, what is recorded stays as it was. Returns after it.
    void OnRecordRegion();

    /// Works out the region from the overlay's squares and stores it.
    void storeRegion();

    /// Ends and closes the open overlay and its modal loop because the screen has changed;
    /// `pFullScreen` is null afterwards, and the whole screen is recorded.
    void endRegionOverlay();
    /// The screen configuration changed: an open overlay whose screen is another now ends, and the
    /// whole screen is recorded.
    void screenParametersDidChange();

    bool isRegionRecorded() const { return region.i_Type_Screen_Capture() == CAPTURE_REGION; }

    /// The latest grab, in which the region has its place from now on.
    void setGrab(const region_place::Grab &grab) { grab_ = grab; }
    /// Worked out once for as long as nothing changes on which it depends. Counted from the screen
    /// on which the region was chosen, wherever the main window has gone since.
    const region_place::Place &place() const;

    Surroundings &surroundings() const { return surroundings_; }

private:
    Surroundings &surroundings_;
    region_place::Grab grab_;
    mutable std::optional<region_place::Inputs> placedFor_;
    mutable region_place::Place place_;
};
