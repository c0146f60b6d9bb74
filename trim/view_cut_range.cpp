// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/view_cut_range.h"

#include "record/recorder.h"
#include "shell/surroundings.h"
#include "shell/working_folders.h"
#include "trim/focus_ring.h"
#include "trim/strip_look.h"
#include "trim/strip_pictures.h"
#include "trim/trim_editor.h"
#include "trim/view_cut_preview.h"

#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

using range_rules::Handle;
using range_rules::Handles;
using strip_look::filmHeight;
using strip_look::filmTop;

namespace {

constexpr int smallestWidth = 60; // points
/// Of one picture, in points: narrower ones show nothing, wider ones too little of the time.
constexpr double narrowest = 24;
constexpr double widest = 160;
constexpr double selectionBegins = 4; // points from the press

Handles handlesOf(const TrimEditor &editor) {
    return {editor.trim.f_Cut_Percent_Menor(), editor.trim.f_Cut_Percent_Maior()};
}

bool isPlaying(const TrimEditor &editor) { return editor.trim.m_PlayStatus() == PLAY_STATUS_PLAY; }

/// The rest of the strip beside a part of it, to the left and to the right.
QRectF before(const QRectF &film, double x) {
    return {film.left(), film.top(), x - film.left(), film.height()};
}
QRectF behind(const QRectF &film, double x) {
    return {x, film.top(), film.right() - x, film.height()};
}

} // namespace

View_Cut_Range::View_Cut_Range(QWidget *parent)
    : QWidget(parent), pictures_(new StripPictures(this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (const StripPart part : {StripPart::Menor, StripPart::Playhead, StripPart::Maior})
        parts_[static_cast<int>(part)] = new CutHandle(*this, part);
    new FocusRing(*this);
    connect(pictures_, &StripPictures::changed, this, qOverload<>(&QWidget::update));
}

void View_Cut_Range::setEditor(TrimEditor &editor, View_Cut_Preview &preview) {
    editor_ = &editor;
    preview_ = &preview;
    connect(editor_, &TrimEditor::viewsChanged, this, [this] {
        update();
        announceMoves();
    });
    connect(editor_, &TrimEditor::stateChanged, this, qOverload<>(&QWidget::update));
}

QSize View_Cut_Range::sizeHint() const { return {smallestWidth, strip_look::stripHeight}; }
QSize View_Cut_Range::minimumSizeHint() const { return sizeHint(); }

bool View_Cut_Range::arePicturesComplete() const { return pictures_->isComplete(); }

void View_Cut_Range::requestPictures() {
    const auto &images = editor_->recorder().recording.array_Images;
    const std::uint64_t frames = frameCount();
    const bool exists = frames > 0 && editor_->surroundings().firstFrameFileExists();
    const Image first = exists && images && !images->empty() ? images->front() : Image();
    const QSizeF shape = first.isEmpty() ? QSizeF(16, 10) : QSizeF(first.size());
    const double natural = filmHeight * shape.width() / shape.height();
    const QSizeF bounds(std::clamp(natural, narrowest, widest), filmHeight);
    const auto count = exists ? static_cast<std::size_t>(std::ceil(width() / bounds.width())) : 0;
    std::vector<StripPictures::Source> sources(count);
    for (std::size_t place = 0; place < count; ++place) {
        StripPictures::Source &source = sources[place];
        const double middle = (static_cast<double>(place) + 0.5) / static_cast<double>(count);
        source.frame = range_rules::frameAtX(middle, frames, 1.0);
        if (images && source.frame < images->size())
            source.image = (*images)[source.frame];
        else
            source.file = working_folders::frameFile(
                editor_->surroundings().shell.s_Output_Folder(), source.frame);
    }
    const double ratio = devicePixelRatioF();
    // One more pixel than its place has: none of the background is seen between two pictures.
    const QSize pixels(qCeil(bounds.width() * ratio) + 1, qCeil(bounds.height() * ratio) + 1);
    pictures_->request(std::move(sources), pixels, ratio, first.identity());
}

void View_Cut_Range::place() {
    const Handles handles = handlesOf(*editor_);
    const double gripHeight = filmHeight + 2 * strip_look::gripOverlap;
    const double bottom = height() - filmTop - filmHeight - strip_look::gripOverlap;
    const auto grip = [&](range_rules::Stretch stretch) {
        return QRectF(stretch.x, bottom, stretch.width, gripHeight);
    };
    rectMenor_ = grip(range_rules::lowerHandle(handles.menor, width()));
    rectMaior_ = grip(range_rules::upperHandle(handles.maior, width()));
    const range_rules::Stretch line =
        range_rules::playhead(editor_->shownFrame(), frameCount(), width());
    rectPlayhead_ = QRectF(line.x, bottom, line.width, height() - bottom);
    // At the ends the knob stays where all of it can be seen.
    const double half = strip_look::knobWidth / 2.0;
    const double middle =
        std::clamp(rectPlayhead_.center().x(), half, std::max(half, width() - half));
    rectKnob_ = QRectF(middle - half, height() - strip_look::knobHeight, strip_look::knobWidth,
                       strip_look::knobHeight);
}

void View_Cut_Range::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    if (!editor_)
        return;
    requestPictures();
    place();
    strip_look::drawFilm(painter, film(), pictures_->pictures(), palette());
    drawRuns(painter);
    const double left = rectMenor_.left();
    const double right = std::max(rectMaior_.right(), left);
    strip_look::drawLeftOut(painter, before(film(), left));
    strip_look::drawLeftOut(painter, behind(film(), right));
    strip_look::drawKept(painter, film().intersected({left, 0, right - left, double(height())}),
                         palette());
    if (frameCount() > 0)
        strip_look::drawPlayhead(painter, fromLowerLeft(rectPlayhead_), fromLowerLeft(rectKnob_));
    // Above the playhead's line: where both are, the grip is whole and the knob tells the rest.
    for (const QRectF &grip : {rectMenor_, rectMaior_})
        strip_look::drawGrip(painter, fromLowerLeft(grip), palette());
    // What moves by itself changes what can be dragged under a pointer that rests.
    if (underMouse() && !b_Mouse_Down_)
        showWhatCanBeDragged(mapFromGlobal(QPointF(QCursor::pos())));
}

void View_Cut_Range::drawRuns(QPainter &painter) {
    const auto placeOf = [this](FrameRuns::Run run) {
        return onFilm(range_rules::placeOfFrames(run.first, run.last, frameCount(), width()));
    };
    for (const FrameRuns::Run &run : editor_->leftOut().runs())
        strip_look::drawDeleted(painter, placeOf(run));
    if (const auto &selection = editor_->selection())
        strip_look::drawSelection(painter, placeOf(*selection), palette());
}

QRectF View_Cut_Range::film() const {
    return {0.0, double(filmTop), double(width()), double(filmHeight)};
}

QRectF View_Cut_Range::onFilm(range_rules::Stretch stretch) const {
    return {stretch.x, double(filmTop), stretch.width, double(filmHeight)};
}

QPointF View_Cut_Range::fromLowerLeft(QPointF position) const {
    // Positions count pixels from 0; the lowest row of pixels is the one at y = 0.
    return {position.x(), height() - 1.0 / devicePixelRatioF() - position.y()};
}

QRectF View_Cut_Range::fromLowerLeft(const QRectF &area) const {
    return {area.x(), height() - area.y() - area.height(), area.width(), area.height()};
}

std::optional<FrameRuns::Run> View_Cut_Range::selectable() const {
    const std::uint64_t frames = frameCount();
    if (!editor_ || frames == 0)
        return {};
    const std::uint64_t first = frameOf(StripPart::Menor);
    const std::uint64_t last = std::min(frameOf(StripPart::Maior), frames - 1);
    return first <= last ? std::optional(FrameRuns::Run{first, last}) : std::nullopt;
}

std::uint64_t View_Cut_Range::selectableAt(double x, FrameRuns::Run within) const {
    return std::clamp(range_rules::frameAtX(x, frameCount(), width()), within.first, within.last);
}

bool View_Cut_Range::isOnKnob(QPointF position) const {
    return frameCount() > 0 && fromLowerLeft(rectKnob_).contains(position);
}

void View_Cut_Range::dropSelectionOutside(double x) {
    const auto &selection = editor_->selection();
    if (!selection)
        return;
    const auto [left, width_] =
        range_rules::placeOfFrames(selection->first, selection->last, frameCount(), width());
    if (x < left || x >= left + width_)
        editor_->clearSelection();
}

void View_Cut_Range::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    b_Mouse_Down_ = true;
    mouseDownPos_ = fromLowerLeft(event->position());
    if (!editor_)
        return;
    const double x = event->position().x();
    dropSelectionOutside(x);
    if (const auto handle = range_rules::handleNear(handlesOf(*editor_), x, width())) {
        const bool isLower = *handle == Handle::Menor;
        b_Dragging_Menor_ = isLower;
        b_Dragging_Maior_ = !isLower;
        choose(isLower ? StripPart::Menor : StripPart::Maior);
        // Its frame is seen before it moves.
        if (!isPlaying(*editor_))
            store(handlesOf(*editor_), *handle);
        return;
    }
    choose(StripPart::Playhead);
    if (isOnKnob(event->position())) {
        isDraggingPlayhead_ = true;
        return;
    }
    isClick_ = true;
    const range_rules::Stretch band = range_rules::bandBetween(handlesOf(*editor_), width());
    const auto between = selectable();
    if (between && x >= band.x && x < band.x + band.width)
        anchor_ = selectableAt(x, *between);
}

void View_Cut_Range::mouseMoveEvent(QMouseEvent *event) {
    if (!editor_)
        return;
    const double x = event->position().x();
    if (!b_Mouse_Down_)
        return showWhatCanBeDragged(event->position());
    if (b_Dragging_Menor_ || b_Dragging_Maior_) {
        const Handle handle = b_Dragging_Menor_ ? Handle::Menor : Handle::Maior;
        const double width = preview_->width();
        if (const auto moved = range_rules::dragged(handlesOf(*editor_), handle, x, width)) {
            pauseWhatPlays();
            store(*moved, range_rules::inHand(*moved, handle, range_rules::percentAt(x, width)));
        }
        return;
    }
    if (isDraggingPlayhead_) {
        pauseWhatPlays();
        editor_->showFrame(range_rules::frameAtX(x, frameCount(), width()));
        return;
    }
    if (std::abs(x - mouseDownPos_.x()) >= selectionBegins)
        isClick_ = false;
    if (!isClick_)
        selectTo(x);
}

void View_Cut_Range::selectTo(double x) {
    const auto between = selectable();
    if (!anchor_ || !between)
        return;
    pauseWhatPlays();
    editor_->select(*anchor_, selectableAt(x, *between));
}

void View_Cut_Range::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return;
    if (isClick_ && editor_)
        editor_->showFrame(range_rules::frameAtX(mouseDownPos_.x(), frameCount(), width()));
    b_Mouse_Down_ = false;
    b_Dragging_Menor_ = false;
    b_Dragging_Maior_ = false;
    isDraggingPlayhead_ = false;
    isClick_ = false;
    anchor_.reset();
    showWhatCanBeDragged(event->position());
}

void View_Cut_Range::showWhatCanBeDragged(QPointF position) {
    const bool over =
        editor_ &&
        (range_rules::handleNear(handlesOf(*editor_), position.x(), width()) || isOnKnob(position));
    setCursor(over ? Qt::SizeHorCursor : Qt::ArrowCursor);
}

void View_Cut_Range::pauseWhatPlays() {
    if (isPlaying(*editor_))
        editor_->OnCutPause();
}

void View_Cut_Range::store(Handles handles, Handle inHand) {
    editor_->moveHandles(handles.menor, handles.maior,
                         inHand == Handle::Menor ? RangeEnd::First : RangeEnd::Last);
}

void View_Cut_Range::announceMoves() {
    // While it plays, that is as much as to be known.
    if (isPlaying(*editor_))
        return;
    for (CutHandle *part : parts_)
        part->announceValue();
}

std::uint64_t View_Cut_Range::frameCount() const {
    return editor_ ? editor_->recorder().recording.u_Record_Current_Frame() : 0;
}

std::uint64_t View_Cut_Range::frameOf(StripPart part) const {
    if (!editor_)
        return 0;
    if (part == StripPart::Playhead)
        return editor_->shownFrame();
    const Handles handles = handlesOf(*editor_);
    return range_rules::frameAt(part == StripPart::Menor ? handles.menor : handles.maior,
                                frameCount());
}

QString View_Cut_Range::textOf(StripPart part) const {
    return editor_ ? editor_->textOfFrame(frameOf(part)) : QString();
}

void View_Cut_Range::moveToFrame(StripPart part, std::uint64_t frame) {
    const std::uint64_t frames = frameCount();
    if (!editor_ || frames == 0)
        return;
    pauseWhatPlays();
    if (part == StripPart::Playhead)
        return editor_->showFrame(frame);
    const Handle handle = part == StripPart::Menor ? Handle::Menor : Handle::Maior;
    const Handles earlier = handlesOf(*editor_);
    const float percent = range_rules::percentFor(std::min(frame, frames), frames);
    const bool isLower = handle == Handle::Menor;
    const bool passes = isLower ? percent > earlier.maior : percent < earlier.menor;
    const bool lowerInHand = isLower != passes;
    store(range_rules::with(earlier, handle, percent), lowerInHand ? Handle::Menor : Handle::Maior);
    if (passes && chosen_ == part)
        choose(isLower ? StripPart::Maior : StripPart::Menor);
}

QRect View_Cut_Range::areaOf(StripPart part) const {
    const QRectF &area = part == StripPart::Menor   ? rectMenor_
                         : part == StripPart::Maior ? rectMaior_
                                                    : rectKnob_;
    return fromLowerLeft(area).toAlignedRect();
}
