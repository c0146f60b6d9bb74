// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/image/image.h"
#include "platform/window_server.h"
#include "record/marks/marks.h"
#include "record/window_entry.h"

#include <QPoint>
#include <QRect>
#include <QRectF>

#include <cstdint>
#include <optional>
#include <vector>

/// State of the window-list capture: how it asks, what it saw last. `record/` owns the behaviour.
class CaptureFields {
public:
    /// Option set of the window-list query; 1 lists only windows that are on screen.
    std::uint32_t listOptions() const { return listOptions_; }
    void setListOptions(std::uint32_t options) { listOptions_ = options; }

    /// Option set of the composite image; 0 is the default set.
    std::uint32_t imageOptions() const { return imageOptions_; }
    void setImageOptions(std::uint32_t options) { imageOptions_ = options; }

    /// Area of the composite image; none means the infinite rectangle, the whole desktop.
    const std::optional<QRectF> &imageBounds() const { return imageBounds_; }
    void setImageBounds(const std::optional<QRectF> &bounds) { imageBounds_ = bounds; }

    /// The windows on screen as of the latest tick, front to back.
    std::vector<WindowDescription> windowsOnScreen;

    /// The latest on-screen window list, front to back.
    std::vector<WindowEntry> arrayController;

    /// That list without the program's own windows: what the grab shows.
    std::vector<WindowEntry> arrayWindowsMinusHarrowlens;

    /// Accumulator of the latest window-list walk.
    std::optional<WindowListApplierData> windowListData;

    /// Latest composite image of the whole desktop, one unit per point.
    const Image &imgScreenCapture() const { return imgScreenCapture_; }
    void setImgScreenCapture(const Image &image) { imgScreenCapture_ = image; }

    /// Where `imgScreenCapture` is true to the screen, in pixels of the desktop; everywhere when
    /// none.
    const std::optional<QRect> &grabbedPart() const { return grabbedPart_; }
    void setGrabbedPart(const std::optional<QRect> &part) { grabbedPart_ = part; }

    /// The grab that `imgScreenCapture` is the half of; empty when it was not halved.
    const Image &grabBeforeHalving() const { return grabBeforeHalving_; }
    void setGrabBeforeHalving(const Image &image) { grabBeforeHalving_ = image; }

    /// The pixel of that grab which is the upper left one of those that became the half's first.
    QPoint halvedFrom() const { return halvedFrom_; }
    void setHalvedFrom(QPoint pixel) { halvedFrom_ = pixel; }

    /// What hands did when the latest grab was taken, as far as it is to be shown. It is not in
    /// `imgScreenCapture`.
    MarksShown marks;

    /// The image that the record preview drew last: the whole grab or the region cut out of it, and
    /// over it what hands did.
    const Image &imageScreenCaptureFinal() const { return imageScreenCaptureFinal_; }
    void setImageScreenCaptureFinal(const Image &image) { imageScreenCaptureFinal_ = image; }

private:
    std::uint32_t listOptions_ = 0;
    std::uint32_t imageOptions_ = 0;
    std::optional<QRectF> imageBounds_;
    Image imgScreenCapture_;
    std::optional<QRect> grabbedPart_;
    Image grabBeforeHalving_;
    QPoint halvedFrom_;
    Image imageScreenCaptureFinal_;
};
