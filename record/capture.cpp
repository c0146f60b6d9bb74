// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/recorder.h"

#include "platform/screen_source.h"
#include "record/grab_geometry.h"
#include "record/window_list.h"
#include "region/region_chooser.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr float halfSize = 50.0f; // percent

std::int32_t stackingOrder(const WindowEntry *entry) {
    return entry->value(kWindowOrderKey).toInt();
}

} // namespace

void Recorder::updateWindowList() {
    WindowListApplierData walk;
    walk.initWindowListData({});
    capture.windowsOnScreen = source().windows();
    for (const WindowDescription &description : capture.windowsOnScreen)
        WindowListApplierFunction(description, walk);
    capture.arrayController = walk.outputArray();
    capture.windowListData = std::move(walk);
}

std::vector<std::uint32_t>
Recorder::newWindowListFromSelection(std::span<const WindowEntry> selection) {
    std::vector<const WindowEntry *> entries;
    entries.reserve(selection.size());
    for (const WindowEntry &entry : selection)
        entries.push_back(&entry);
    std::ranges::stable_sort(entries, {}, stackingOrder);
    std::vector<std::uint32_t> numbers;
    numbers.reserve(entries.size());
    for (const WindowEntry *entry : entries)
        numbers.push_back(entry->value(kWindowIDKey).toUInt());
    return numbers;
}

void Recorder::createMultiWindowShot(std::span<const WindowEntry> selection) {
    const std::optional<QRect> part = chooser_.place().partInUse;
    const auto grab = source().latest(newWindowListFromSelection(selection), part);
    if (!grab)
        return;
    // A picture of what was chosen is always all of it.
    capture.setGrabbedPart(grab->pixelsPerPoint ? std::nullopt : part);
    capture.marks = hands.look(capture.windowsOnScreen);
    // A region keeps its place in a recording, whatever becomes of what is recorded.
    if (grab->pixelsPerPoint && recording.m_RecordStatus() == RECORD_STATUS_STOP)
        chooser_.setScreenOfGrab(
            coordinates::Screen{.height = grab->image.height() / *grab->pixelsPerPoint,
                                .ratio = *grab->pixelsPerPoint});
    setOutputImage(grab->image);
}

void Recorder::setOutputImage(const std::optional<Image> &grab) {
    if (!grab)
        return;
    const std::optional<QPoint> halvedFrom = chooser_.place().halvedFrom;
    if (!halvedFrom) {
        capture.setGrabBeforeHalving({});
        capture.setImgScreenCapture(fittedToRecording(*grab));
        grabPlaceChanged();
        return;
    }
    // A desktop on which nothing changed yields the same picture: so must its half, for what is
    // drawn and written only once for the same picture.
    if (capture.grabBeforeHalving().sameAs(*grab) && capture.halvedFrom() == *halvedFrom)
        return;
    capture.setGrabBeforeHalving(*grab);
    capture.setHalvedFrom(*halvedFrom);
    const QRect halved =
        QRect(QPoint(), grab->size()).adjusted(halvedFrom->x(), halvedFrom->y(), 0, 0);
    capture.setImgScreenCapture(fittedToRecording(
        Scale_Image_By_Percentage(halvedFrom->isNull() ? *grab : grab->cut(halved, {}), halfSize)));
    grabPlaceChanged();
}

Image Recorder::withMarks(const Image &frame, QPoint corner) {
    FramePlace place{.origin = corner};
    if (!capture.grabBeforeHalving().isEmpty())
        place = {.origin = capture.halvedFrom() + corner * 2, .density = 2};
    return marks_.over(frame, place, capture.marks);
}

void Recorder::grabPlaceChanged() {
    if (capture.grabBeforeHalving().isEmpty())
        chooser_.setGrab({capture.imgScreenCapture().size()});
    else
        chooser_.setGrab({capture.grabBeforeHalving().size(), capture.halvedFrom()});
}

Image Recorder::Scale_Image_By_Percentage(const Image &image, float percentage) {
    if (image.isEmpty())
        return image;
    const ScaledSize size = scaledByPercentage(image.width(), image.height(), percentage);
    // Whole pixels: a fraction would leave a half transparent edge on an opaque picture.
    const QSize pixels(std::max(1, static_cast<int>(std::lround(size.width))),
                       std::max(1, static_cast<int>(std::lround(size.height))));
    return Image::fromQImage(
        image.toQImage().scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}
