// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT

// The strip by keyboard: what has the focus, and what keys do there.

#include "trim/trim_editor.h"
#include "trim/view_cut_range.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr std::uint64_t pagesOfRecording = 10;

std::uint64_t pageOf(std::uint64_t frames) {
    return std::max<std::uint64_t>(frames / pagesOfRecording, 1);
}

} // namespace

bool View_Cut_Range::extendSelection(int key) {
    const std::optional<FrameRuns::Run> between = selectable();
    if (!between)
        return false;
    const auto &selection = editor_->selection();
    const bool fromHandle =
        chosen_ != StripPart::Playhead && editor_->trim.m_PlayStatus() == PLAY_STATUS_STOP;
    // The first step selects the frame where it begins.
    const std::uint64_t begin = std::clamp(fromHandle ? frameOf(chosen_) : editor_->shownFrame(),
                                           between->first, between->last);
    const std::uint64_t shown = editor_->shownFrame();
    const std::uint64_t at = !selection                  ? begin
                             : shown == selection->first ? shown
                                                         : selection->last;
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
        to = back(pageOf(frameCount()));
        break;
    case Qt::Key_PageUp:
        to = forth(pageOf(frameCount()));
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
    pauseWhatPlays();
    editor_->select(from, to);
    return true;
}

bool View_Cut_Range::usesKey(const QKeyEvent &event) const {
    if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier))
        return false;
    const bool hasShift = event.modifiers() & Qt::ShiftModifier;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        return chosen_ != StripPart::Playhead;
    case Qt::Key_Home:
    case Qt::Key_End:
        return chosen_ != StripPart::Playhead || hasShift;
    default:
        return false;
    }
}

bool View_Cut_Range::event(QEvent *event) {
    // Otherwise it would be a command of the window.
    if (event->type() == QEvent::ShortcutOverride && usesKey(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void View_Cut_Range::keyPressEvent(QKeyEvent *event) {
    if (!editor_)
        return QWidget::keyPressEvent(event);
    if ((event->modifiers() & Qt::ShiftModifier) && extendSelection(event->key()))
        return;
    if (event->key() == Qt::Key_Escape && editor_->selection())
        return editor_->clearSelection();
    const std::uint64_t frame = frameOf(chosen_);
    const std::uint64_t frames = frameCount();
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
        return back(pageOf(frames));
    case Qt::Key_PageUp:
        return forth(pageOf(frames));
    case Qt::Key_Home:
        return back(frames);
    case Qt::Key_End:
        return forth(frames);
    default:
        return QWidget::keyPressEvent(event);
    }
}

void View_Cut_Range::choose(StripPart part) {
    chosen_ = part;
    parts_[static_cast<int>(part)]->announceFocus();
    // The ring shows what is chosen.
    Q_EMIT chosenPartChanged();
}

void View_Cut_Range::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason)
        choose(StripPart::Menor);
    if (event->reason() == Qt::BacktabFocusReason)
        choose(StripPart::Maior);
    // The tab was entered: keys show frames, and move no handle unasked.
    if (event->reason() == Qt::OtherFocusReason)
        choose(StripPart::Playhead);
}

bool View_Cut_Range::focusNextPrevChild(bool next) {
    const StripPart end = next ? StripPart::Maior : StripPart::Menor;
    if (!hasFocus() || chosen_ == end)
        return QWidget::focusNextPrevChild(next);
    choose(static_cast<StripPart>(static_cast<int>(chosen_) + (next ? 1 : -1)));
    return true;
}
