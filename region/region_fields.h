// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "region/frame_dimension.h"
#include "shell/coordinates.h"

#include <QRectF>
#include <QSizeF>

#include <cstdint>
#include <optional>
#include <vector>

class Window_Transparent_Region;

/// What is recorded: the whole screen, or the region.
enum CaptureType : std::int64_t {
    CAPTURE_FULL_SCREEN = 0,
    CAPTURE_REGION = 1,
};

/// State of the region selection, in points from the lower left corner of the main window's screen,
/// y upwards. `region/` owns the behaviour.
class RegionFields {
public:
    CaptureType i_Type_Screen_Capture() const { return i_Type_Screen_Capture_; }
    void setI_Type_Screen_Capture(CaptureType type) { i_Type_Screen_Capture_ = type; }

    /// Whether the how-to dialog precedes region selection: at 1, and at no other value.
    std::int64_t b_Show_Select_Region_How_To() const { return b_Show_Select_Region_How_To_; }
    void setB_Show_Select_Region_How_To(std::int64_t flag) { b_Show_Select_Region_How_To_ = flag; }

    /// Lower left corners of the overlay's five squares, by index.
    std::vector<FrameDimension> arrayScreenPointSquare;

    /// Size of the region that the overlay starts with.
    QSizeF size_Region() const { return size_Region_; }
    void setSize_Region(QSizeF size) { size_Region_ = size; }

    /// The rectangle to capture. QRectF serves as four numbers here: `y()` is the lower edge.
    QRectF rect_Screen_Region() const { return rect_Screen_Region_; }
    void setRect_Screen_Region(const QRectF &region) { rect_Screen_Region_ = region; }

    /// The screen that the region is measured on: that of the main window when the overlay opened.
    /// None until a region has been chosen; the region then counts from the lower left corner of
    /// the grab, in its units.
    const std::optional<coordinates::Screen> &screenOfRegion() const { return screenOfRegion_; }
    void setScreenOfRegion(const std::optional<coordinates::Screen> &screen) {
        screenOfRegion_ = screen;
    }

    /// The open region overlay; null while there is none. Borrowed from the region command, whose
    /// modal loop owns it.
    Window_Transparent_Region *pFullScreen() const { return pFullScreen_; }
    void setPFullScreen(Window_Transparent_Region *overlay) { pFullScreen_ = overlay; }

private:
    CaptureType i_Type_Screen_Capture_ = CAPTURE_FULL_SCREEN;
    std::int64_t b_Show_Select_Region_How_To_ = 0;
    QSizeF size_Region_;
    QRectF rect_Screen_Region_;
    std::optional<coordinates::Screen> screenOfRegion_;
    Window_Transparent_Region *pFullScreen_ = nullptr;
};
