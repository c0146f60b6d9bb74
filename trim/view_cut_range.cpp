// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "trim/view_cut_range.h"

#include "record/recorder.h"
#include "trim/cut_handle.h"
#include "trim/focus_ring.h"
#include "trim/trim_editor.h"
#include "trim/view_cut_preview.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using range_rules::Handle;
using range_rules::Handles;

namespace {

constexpr int stripHeight = 28;   // points: comfortable to grab
constexpr int smallestWidth = 60; // points

const QColor background = QColor::fromRgbF(0.5f, 0.5f, 0.5f);
const QColor handleColour(255, 0, 0);
const QColor bandColour(0, 255, 0);
const QColor playheadColour(0, 0, 255);
const QColor leftOutColour(90, 90, 90);
const QColor hatchColour(20, 20, 20);
constexpr int selectionOpacity = 150; // of 255: what is beneath stays visible

Handles handlesOf(const TrimEditor &editor) {
    return {editor.trim.f_Cut_Percent_Menor(), editor.trim.f_Cut_Percent_Maior()};
}

bool stopped(const TrimEditor &editor) { return editor.trim.m_PlayStatus() == PLAY_STATUS_STOP; }

Handle other(Handle handle) { return handle == Handle::Menor ? Handle::Maior : Handle::Menor; }

} // namespace

View_Cut_Range::View_Cut_Range(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    handles_[0] = new CutHandle(*this, Handle::Menor);
    handles_[1] = new CutHandle(*this, Handle::Maior);
    new FocusRing(*this);
}

void View_Cut_Range::setEditor(TrimEditor &editor, View_Cut_Preview &preview) {
    editor_ = &editor;
    preview_ = &preview;
    connect(editor_, &TrimEditor::viewsChanged, this, qOverload<>(&QWidget::update));
    connect(editor_, &TrimEditor::stateChanged, this, qOverload<>(&QWidget::update));
}

QSize View_Cut_Range::sizeHint() const { return {smallestWidth, stripHeight}; }
QSize View_Cut_Range::minimumSizeHint() const { return sizeHint(); }

void View_Cut_Range::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), background);
    if (!editor_)
        return;
    if (stopped(*editor_))
        drawHandles(painter, handlesOf(*editor_));
    drawRuns(painter);
    if (!stopped(*editor_))
        drawPlayhead(painter, editor_->trim);
    // Play, Pause and Stop change what can be dragged under a pointer that rests.
    if (underMouse() && !b_Mouse_Down_)
        showWhatCanBeDragged(mapFromGlobal(QCursor::pos()).x());
}

void View_Cut_Range::drawRuns(QPainter &painter) {
    const std::optional<FrameRuns::Run> between = selectable();
    if (!between)
        return;
    painter.save();
    if (stopped(*editor_)) {
        const range_rules::Stretch band = range_rules::bandBetween(handlesOf(*editor_), width());
        painter.setClipRect(fullHeight({band.x, std::max(band.width, 0.0)}));
    }
    const auto place = [this](FrameRuns::Run run) {
        return fullHeight(range_rules::placeOfFrames(run.first, run.last, frameCount(), width()));
    };
    const FrameRuns leftOut = editor_->leftOut().within(*between);
    for (const FrameRuns::Run &run : leftOut.runs()) {
        painter.fillRect(place(run), leftOutColour);
        painter.fillRect(place(run), QBrush(hatchColour, Qt::BDiagPattern));
    }
    if (const auto &selection = editor_->selection()) {
        QColor colour = palette().color(QPalette::Highlight);
        colour.setAlpha(selectionOpacity);
        painter.fillRect(place(*selection), colour);
        painter.setPen(palette().color(QPalette::HighlightedText));
        painter.drawRect(place(*selection).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter.restore();
}

std::optional<FrameRuns::Run> View_Cut_Range::selectable() const {
    const std::uint64_t frames = frameCount();
    if (!editor_ || frames == 0)
        return {};
    const std::uint64_t first = frameOf(Handle::Menor);
    const std::uint64_t last = std::min(frameOf(Handle::Maior), frames - 1);
    return first <= last ? std::optional(FrameRuns::Run{first, last}) : std::nullopt;
}

std::uint64_t View_Cut_Range::selectableAt(double x, FrameRuns::Run within) const {
    return std::clamp(range_rules::frameAtX(x, frameCount(), width()), within.first, within.last);
}

QRectF View_Cut_Range::fullHeight(range_rules::Stretch stretch) const {
    return {stretch.x, 0.0, stretch.width, static_cast<double>(height())};
}

void View_Cut_Range::drawPlayhead(QPainter &painter, const TrimFields &trim) {
    rectMenor_ = fullHeight(range_rules::playhead(trim.uCurrentFrame(), trim.uFirstFrame(),
                                                  trim.uLastFrame(), width()));
    painter.fillRect(rectMenor_, playheadColour);
}

void View_Cut_Range::drawHandles(QPainter &painter, Handles handles) {
    rectMenor_ = fullHeight(range_rules::lowerHandle(handles.menor, width()));
    rectMaior_ = fullHeight(range_rules::upperHandle(handles.maior, width()));
    painter.fillRect(rectMenor_, handleColour);
    painter.fillRect(rectMaior_, handleColour);
    const range_rules::Stretch band = range_rules::bandBetween(handles, width());
    if (band.width > 0.0)
        painter.fillRect(fullHeight(band), bandColour);
}

QPointF View_Cut_Range::fromLowerLeft(QPointF position) const {
    // Positions count pixels from 0; the lowest row of pixels is the one at y = 0.
    return {position.x(), height() - 1.0 / devicePixelRatioF() - position.y()};
}

void View_Cut_Range::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    b_Mouse_Down_ = true;
    mouseDownPos_ = fromLowerLeft(event->position());
    // Half-open like the handles' sides; QRectF would count its far edges in.
    const auto hit = [this](const QRectF &r) {
        return range_rules::contains({r.x(), r.width()}, mouseDownPos_.x()) &&
               range_rules::contains({r.y(), r.height()}, mouseDownPos_.y());
    };
    if (hit(rectMenor_)) {
        b_Dragging_Menor_ = true;
        choose(Handle::Menor);
    } else if (hit(rectMaior_)) {
        b_Dragging_Maior_ = true;
        choose(Handle::Maior);
    } else if (editor_) {
        editor_->clearSelection();
        const range_rules::Stretch band = range_rules::bandBetween(handlesOf(*editor_), width());
        const auto between = selectable();
        if (between && range_rules::contains(band, mouseDownPos_.x()))
            anchor_ = selectableAt(mouseDownPos_.x(), *between);
    }
}

void View_Cut_Range::mouseMoveEvent(QMouseEvent *event) {
    if (!editor_)
        return;
    if (!b_Mouse_Down_)
        showWhatCanBeDragged(event->position().x());
    if (const auto between = selectable(); b_Mouse_Down_ && anchor_ && between)
        editor_->select(*anchor_, selectableAt(event->position().x(), *between));
    if (!stopped(*editor_) || !b_Mouse_Down_ || !(b_Dragging_Menor_ || b_Dragging_Maior_))
        return;
    const Handle handle = b_Dragging_Menor_ ? Handle::Menor : Handle::Maior;
    const double width = preview_->width();
    const double x = event->position().x();
    const auto moved = range_rules::dragged(handlesOf(*editor_), handle, x, width);
    if (!moved)
        return;
    preview(range_rules::inHand(*moved, handle, range_rules::percentAt(x, width)));
    store(*moved);
}

void View_Cut_Range::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return;
    b_Mouse_Down_ = false;
    b_Dragging_Menor_ = false;
    b_Dragging_Maior_ = false;
    anchor_.reset();
    showWhatCanBeDragged(event->position().x());
}

void View_Cut_Range::showWhatCanBeDragged(double x) {
    const bool over = editor_ && stopped(*editor_) &&
                      (range_rules::contains({rectMenor_.x(), rectMenor_.width()}, x) ||
                       range_rules::contains({rectMaior_.x(), rectMaior_.width()}, x));
    setCursor(over ? Qt::SizeHorCursor : Qt::ArrowCursor);
}

void View_Cut_Range::preview(Handle handle) {
    if (!editor_)
        return;
    editor_->trim.setPreviewedEnd(handle == Handle::Menor ? RangeEnd::First : RangeEnd::Last);
    preview_->update();
}

void View_Cut_Range::store(Handles handles) {
    editor_->clearSelection();
    editor_->trim.setF_Cut_Percent_Menor(handles.menor);
    editor_->trim.setF_Cut_Percent_Maior(handles.maior);
    for (CutHandle *handle : handles_)
        handle->announceValue();
    update();
    preview_->update();
}

std::uint64_t View_Cut_Range::frameCount() const {
    return editor_ ? editor_->recorder().recording.u_Record_Current_Frame() : 0;
}

std::uint64_t View_Cut_Range::frameOf(Handle handle) const {
    if (!editor_)
        return 0;
    const Handles handles = handlesOf(*editor_);
    return range_rules::frameAt(handle == Handle::Menor ? handles.menor : handles.maior,
                                frameCount());
}

void View_Cut_Range::moveToFrame(Handle handle, std::uint64_t frame) {
    const std::uint64_t frames = frameCount();
    if (!editor_ || !stopped(*editor_) || frames == 0)
        return;
    const Handles before = handlesOf(*editor_);
    const float percent = range_rules::percentFor(std::min(frame, frames), frames);
    const bool passes = handle == Handle::Menor ? percent > before.maior : percent < before.menor;
    preview(passes ? other(handle) : handle);
    store(range_rules::with(before, handle, percent));
    // A drag is seen, so that the preview's drawing follows; whoever sets a value through assistive
    // technology may have the window covered.
    editor_->updateTrimmedRange();
    if (passes && chosen_ == handle)
        choose(other(handle));
}

bool View_Cut_Range::extendSelection(int key) {
    const std::optional<FrameRuns::Run> between = selectable();
    if (!between)
        return false;
    const std::uint64_t page = std::max<std::uint64_t>(frameCount() / 10, 1);
    const auto &selection = editor_->selection();
    // The first step selects the frame where it begins.
    const std::uint64_t begin =
        std::clamp(stopped(*editor_) ? frameOf(chosen_) : editor_->trim.uCurrentFrame(),
                   between->first, between->last);
    const std::uint64_t at = selection ? editor_->pointedFrame().value_or(selection->last) : begin;
    const std::uint64_t from = !selection               ? begin
                               : at == selection->first ? selection->last
                                                        : selection->first;
    const auto back = [&](std::uint64_t by) { return at - std::min(by, at - between->first); };
    const auto forth = [&](std::uint64_t by) { return at + std::min(by, between->last - at); };
    std::uint64_t to = at;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        to = back(selection ? 1 : 0);
        break;
    case Qt::Key_Right:
    case Qt::Key_Up:
        to = forth(selection ? 1 : 0);
        break;
    case Qt::Key_PageDown:
        to = back(page);
        break;
    case Qt::Key_PageUp:
        to = forth(page);
        break;
    case Qt::Key_Home:
        to = between->first;
        break;
    case Qt::Key_End:
        to = between->last;
        break;
    default:
        return false;
    }
    editor_->select(from, to);
    return true;
}

void View_Cut_Range::keyPressEvent(QKeyEvent *event) {
    if (event->modifiers() == Qt::ShiftModifier && extendSelection(event->key()))
        return;
    if (event->key() == Qt::Key_Escape && editor_ && editor_->selection())
        return editor_->clearSelection();
    const std::uint64_t frame = frameOf(chosen_);
    const std::uint64_t frames = frameCount();
    const std::uint64_t page = std::max<std::uint64_t>(frames / 10, 1);
    const auto back = [&](std::uint64_t by) { moveToFrame(chosen_, frame - std::min(by, frame)); };
    const auto forth = [&](std::uint64_t by) { moveToFrame(chosen_, frame + by); };
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return back(1);
    case Qt::Key_Right:
    case Qt::Key_Up:
        return forth(1);
    case Qt::Key_PageDown:
        return back(page);
    case Qt::Key_PageUp:
        return forth(page);
    case Qt::Key_Home:
        return back(frames);
    case Qt::Key_End:
        return forth(frames);
    case Qt::Key_Space:
        if (editor_)
            editor_->togglePlayback();
        return;
    default:
        return QWidget::keyPressEvent(event);
    }
}

void View_Cut_Range::choose(Handle handle) {
    chosen_ = handle;
    preview(handle);
    handles_[handle == Handle::Menor ? 0 : 1]->announceFocus();
    // The ring shows which handle is chosen.
    Q_EMIT chosenHandleChanged();
}

void View_Cut_Range::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason)
        choose(Handle::Menor);
    if (event->reason() == Qt::BacktabFocusReason)
        choose(Handle::Maior);
}

bool View_Cut_Range::focusNextPrevChild(bool next) {
    const Handle end = next ? Handle::Maior : Handle::Menor;
    if (!hasFocus() || chosen_ == end)
        return QWidget::focusNextPrevChild(next);
    choose(end);
    return true;
}

QRect View_Cut_Range::handleArea(Handle handle) const {
    const QRectF area = handle == Handle::Menor ? rectMenor_ : rectMaior_;
    return QRectF(area.x(), 0, area.width(), height()).toAlignedRect();
}
